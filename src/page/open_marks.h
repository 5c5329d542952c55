#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "foundation/name_table.h"
#include "foundation/pooled_lists.h"
#include "page/splice_text.h"

namespace quillmark {

/// The names of a page's open marks: a multimap from a name to marks, equal names in the order
/// of their making.
class OpenMarks {
public:
    using MarkId = SpliceText::MarkId;
    /// The table's own number of a name. Told with the name again it spares the search; one that
    /// is another name's, or no name's, does no harm.
    using NameId = NameTable::Id;

    NameId add(std::string_view name, MarkId mark, NameId hint = NameTable::none);
    /// Number of open marks of all names.
    [[nodiscard]] std::size_t size() const noexcept { return open_; }
    /// The first open mark of the name, or `SpliceText::none`.
    [[nodiscard]] MarkId first(std::string_view name) const noexcept;
    /// Removes the marks of the name and hands each to `each(MarkId)`, in the order of their
    /// making.
    template <typename Each>
    void take(std::string_view name, const Each& each, NameId hint = NameTable::none);
    /// Every open mark, in name order.
    void forEach(const std::function<void(std::string_view name, MarkId)>& each) const;
    void clear() noexcept;
    /// Gives back memory held for growth.
    void compact();

private:
    using Marks = PooledLists<MarkId>;

    [[nodiscard]] bool isNameOf(NameId id, std::string_view name) const noexcept {
        return id < names_.size() && names_.name(id) == name;
    }
    /// The number of the name, which gets one when it is new.
    NameId idOf(std::string_view name, NameId hint);

    NameTable names_;
    std::vector<Marks::List> lists_;  // by the name's number
    Marks marks_;
    std::size_t open_ = 0;
};

template <typename Each>
void OpenMarks::take(std::string_view name, const Each& each, NameId hint) {
    const NameId id = isNameOf(hint, name) ? hint : names_.find(name);
    if (id == NameTable::none) {
        return;
    }
    marks_.take(lists_[id], [&](MarkId mark) {
        --open_;
        each(mark);
    });
}

}  // namespace quillmark
