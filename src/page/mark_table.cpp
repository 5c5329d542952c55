#include "page/mark_table.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillmark {

void MarkTable::add(std::string_view name, MarkId mark) {
    const std::uint32_t entry = newEntry(mark);
    Chain& chain = chains_[idOf(name)];
    (chain.first == NameIndex::none ? chain.first : entries_[chain.last].next) = entry;
    chain.last = entry;
    ++open_;
}

NameIndex::Id MarkTable::idOf(std::string_view name) {
    if (lastAdded_ == NameIndex::none || names_.name(lastAdded_) != name) {
        lastAdded_ = names_.add(name);
        if (lastAdded_ == chains_.size()) {
            chains_.emplace_back();
        }
    }
    return lastAdded_;
}

std::uint32_t MarkTable::newEntry(MarkId mark) {
    if (firstFree_ != NameIndex::none) {
        const std::uint32_t reused = firstFree_;
        firstFree_ = std::exchange(entries_[reused], {mark, NameIndex::none}).next;
        return reused;
    }
    entries_.push_back({mark, NameIndex::none});
    return static_cast<std::uint32_t>(entries_.size() - 1);
}

MarkTable::MarkId MarkTable::first(std::string_view name) const noexcept {
    const NameIndex::Id id = names_.find(name);
    if (id == NameIndex::none || chains_[id].first == NameIndex::none) {
        return SpliceText::none;
    }
    return entries_[chains_[id].first].mark;
}

void MarkTable::forEach(const std::function<void(std::string_view, MarkId)>& each) const {
    std::vector<NameIndex::Id> ordered(names_.size());
    std::iota(ordered.begin(), ordered.end(), NameIndex::Id{0});
    std::sort(ordered.begin(), ordered.end(),
              [this](NameIndex::Id a, NameIndex::Id b) { return names_.name(a) < names_.name(b); });
    for (const NameIndex::Id id : ordered) {
        for (std::uint32_t entry = chains_[id].first; entry != NameIndex::none;
             entry = entries_[entry].next) {
            each(names_.name(id), entries_[entry].mark);
        }
    }
}

void MarkTable::compact() {
    names_.compact();
    chains_.shrink_to_fit();
    entries_.shrink_to_fit();
}

void MarkTable::clear() noexcept {
    names_.clear();
    chains_.clear();
    entries_.clear();
    firstFree_ = NameIndex::none;
    open_ = 0;
    lastAdded_ = NameIndex::none;
}

}  // namespace quillmark
