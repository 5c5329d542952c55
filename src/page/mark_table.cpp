#include "page/mark_table.h"

#include <algorithm>
#include <numeric>

namespace quillmark {

void MarkTable::add(std::string_view name, MarkId mark) {
    const NameIndex::Id id = names_.add(name);
    if (id == chains_.size()) {
        chains_.emplace_back();
    }
    const std::uint32_t entry = newEntry(mark);
    Chain& chain = chains_[id];
    (chain.first == NameIndex::none ? chain.first : entries_[chain.last].next) = entry;
    chain.last = entry;
    ++open_;
}

std::uint32_t MarkTable::newEntry(MarkId mark) {
    if (!freeEntries_.empty()) {
        const std::uint32_t reused = freeEntries_.back();
        freeEntries_.pop_back();
        entries_[reused] = {mark, NameIndex::none};
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

void MarkTable::take(std::string_view name, const std::function<void(MarkId)>& each) {
    const NameIndex::Id id = names_.find(name);
    if (id == NameIndex::none) {
        return;
    }
    std::uint32_t entry = chains_[id].first;
    chains_[id] = {};
    while (entry != NameIndex::none) {
        const Entry taken = entries_[entry];
        freeEntries_.push_back(entry);
        --open_;
        each(taken.mark);
        entry = taken.next;
    }
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

void MarkTable::clear() noexcept {
    names_.clear();
    chains_.clear();
    entries_.clear();
    freeEntries_.clear();
    open_ = 0;
}

}  // namespace quillmark
