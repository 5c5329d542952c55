#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "foundation/name_index.h"
#include "foundation/pooled_lists.h"
#include "page/splice_text.h"

namespace quillmark {

/// The names of a page's open marks: a multimap from a name to marks, equal names in the order
/// of their making.
class MarkTable {
public:
    using MarkId = SpliceText::MarkId;

    void add(std::string_view name, MarkId mark);
    /// Number of open marks of all names.
    [[nodiscard]] std::size_t size() const noexcept { return open_; }
    /// The first open mark of the name, or `SpliceText::none`.
    [[nodiscard]] MarkId first(std::string_view name) const noexcept;
    /// Removes the marks of the name and hands each to `each(MarkId)`, in the order of their
    /// making.
    template <typename Each>
    void take(std::string_view name, const Each& each);
    /// Every open mark, in name order.
    void forEach(const std::function<void(std::string_view name, MarkId)>& each) const;
    void clear() noexcept;
    /// Gives back memory held for growth.
    void compact();

private:
    using Marks = PooledLists<MarkId>;

    /// The number of the name. The end of a link follows its beginning, so the name added last is
    /// found without a search.
    NameIndex::Id idOf(std::string_view name);

    NameIndex names_;
    std::vector<Marks::List> lists_;  // by the name's number
    Marks marks_;
    std::size_t open_ = 0;
    NameIndex::Id lastAdded_ = NameIndex::none;
};

template <typename Each>
void MarkTable::take(std::string_view name, const Each& each) {
    const NameIndex::Id id = names_.find(name);
    if (id == NameIndex::none) {
        return;
    }
    marks_.take(lists_[id], [&](MarkId mark) {
        --open_;
        each(mark);
    });
}

}  // namespace quillmark
