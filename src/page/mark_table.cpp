#include "page/mark_table.h"

#include <algorithm>
#include <numeric>

namespace quillmark {

MarkTable::NameId MarkTable::add(std::string_view name, MarkId mark, NameId hint) {
    const NameId id = idOf(name, hint);
    marks_.append(lists_[id], mark);
    ++open_;
    return id;
}

MarkTable::NameId MarkTable::idOf(std::string_view name, NameId hint) {
    if (isNameOf(hint, name)) {
        return hint;
    }
    const NameId id = names_.add(name);
    if (id == lists_.size()) {
        lists_.emplace_back();
    }
    return id;
}

MarkTable::MarkId MarkTable::first(std::string_view name) const noexcept {
    const NameIndex::Id id = names_.find(name);
    return id == NameIndex::none || lists_[id].isEmpty() ? SpliceText::none
                                                         : marks_.first(lists_[id]);
}

void MarkTable::forEach(const std::function<void(std::string_view, MarkId)>& each) const {
    std::vector<NameIndex::Id> ordered(names_.size());
    std::iota(ordered.begin(), ordered.end(), NameIndex::Id{0});
    std::sort(ordered.begin(), ordered.end(),
              [this](NameIndex::Id a, NameIndex::Id b) { return names_.name(a) < names_.name(b); });
    for (const NameIndex::Id id : ordered) {
        marks_.forEach(lists_[id], [&](MarkId mark) { each(names_.name(id), mark); });
    }
}

void MarkTable::compact() {
    names_.compact();
    lists_.shrink_to_fit();
    marks_.compact();
}

void MarkTable::clear() noexcept {
    names_.clear();
    lists_.clear();
    marks_.clear();
    open_ = 0;
}

}  // namespace quillmark
