#include "foundation/name_table.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quillmark {

namespace {

/// The hash decides the slot in the table and never affects the output.
std::uint32_t hashOf(std::string_view name) noexcept {
    const std::size_t hash = std::hash<std::string_view>{}(name);
    return static_cast<std::uint32_t>(hash ^ (hash >> 31U));
}

/// Up to this many names are searched one by one, without a hash table. Most name tables belong to
/// pages with one or two links.
constexpr std::size_t fewNames = 8;
constexpr std::size_t firstTableSize = 16;

}  // namespace

std::size_t NameTable::slotOf(std::string_view name, std::uint32_t hash) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].id != none && (slots_[at].hash != hash || names_[slots_[at].id] != name)) {
        at = (at + 1) & mask;
    }
    return at;
}

NameTable::Id NameTable::findAmongFew(std::string_view name) const noexcept {
    for (Id id = 0; id < names_.size(); ++id) {
        if (names_[id] == name) {
            return id;
        }
    }
    return none;
}

NameTable::Id NameTable::find(std::string_view name) const noexcept {
    return slots_.empty() ? findAmongFew(name) : slots_[slotOf(name, hashOf(name))].id;
}

NameTable::Id NameTable::add(std::string_view name) {
    if (slots_.empty() && names_.size() < fewNames) {
        const Id found = findAmongFew(name);
        return found != none ? found : names_.add(name);
    }
    if ((names_.size() + 1) * 4 > slots_.size() * 3) {
        grow();
    }
    const std::uint32_t hash = hashOf(name);
    Slot& slot = slots_[slotOf(name, hash)];
    if (slot.id == none) {
        slot = {hash, names_.add(name)};
    }
    return slot.id;
}

void NameTable::grow() {
    std::vector<Slot> grown(std::max(firstTableSize, slots_.size() * 2));
    const std::size_t mask = grown.size() - 1;
    const auto put = [&](const Slot& slot) {
        std::size_t at = slot.hash & mask;
        while (grown[at].id != none) {
            at = (at + 1) & mask;
        }
        grown[at] = slot;
    };
    if (slots_.empty()) {
        for (Id id = 0; id < names_.size(); ++id) {
            put({hashOf(names_[id]), id});
        }
    }
    for (const Slot& slot : slots_) {
        if (slot.id != none) {
            put(slot);
        }
    }
    slots_ = std::move(grown);
}

}  // namespace quillmark
