#include "page/marks/open_marks.h"

#include <algorithm>
#include <numeric>

#include "foundation/growth.h"

namespace quillmark {

OpenMarks::NameId OpenMarks::add(std::string_view name, MarkId mark, NameId hint) {
    const NameId id = idOf(name, hint);
    marks_.append(lists_[id], mark);
    ++open_;
    return id;
}

OpenMarks::NameId OpenMarks::idOf(std::string_view name, NameId hint) {
    if (isNameOf(hint, name)) {
        return hint;
    }
    makeRoomForOne(lists_);
    const NameId id = names_.add(name);
    if (id == lists_.size()) {
        lists_.emplace_back();
    }
    return id;
}

OpenMarks::MarkId OpenMarks::first(std::string_view name) const noexcept {
    const NameTable::Id id = names_.find(name);
    return id == NameTable::none || lists_[id].isEmpty() ? SpliceText::none
                                                         : marks_.first(lists_[id]);
}

void OpenMarks::forEach(const std::function<void(std::string_view, MarkId)>& each) const {
    std::vector<NameTable::Id> ordered(names_.size());
    std::iota(ordered.begin(), ordered.end(), NameTable::Id{0});
    std::sort(ordered.begin(), ordered.end(),
              [this](NameTable::Id a, NameTable::Id b) { return names_.name(a) < names_.name(b); });
    for (const NameTable::Id id : ordered) {
        marks_.forEach(lists_[id], [&](MarkId mark) { each(names_.name(id), mark); });
    }
}

void OpenMarks::compact() {
    names_.compact();
    lists_.shrink_to_fit();
    marks_.compact();
}

}  // namespace quillmark
