#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "foundation/name_table.h"
#include "foundation/pooled_lists.h"
#include "page/marks/splice_text.h"

namespace quillmark {

/// The open marks of a page, by name. Marks with the same name are kept in the order of their
/// creation.
class OpenMarks {
public:
    using MarkId = SpliceText::MarkId;
    /// The id of a name. Pass it back with the name to skip the lookup. The id of another name, or
    /// of none, is ignored.
    using NameId = NameTable::Id;

    NameId add(std::string_view name, MarkId mark, NameId hint = NameTable::none);
    /// The number of open marks of all names.
    [[nodiscard]] std::size_t size() const noexcept { return open_; }
    /// The first open mark of the name, or `SpliceText::none`.
    [[nodiscard]] MarkId first(std::string_view name) const noexcept;
    /// Removes the marks of the name and calls `each(MarkId)` for them, in the order of their
    /// creation. A mark for which `each` throws stays open.
    template <typename Each>
    void take(std::string_view name, const Each& each, NameId hint = NameTable::none);
    /// Calls `each` for every open mark, in the order of their names.
    void forEach(const std::function<void(std::string_view name, MarkId)>& each) const;
    /// Releases memory reserved for growth.
    void compact();

private:
    using Marks = PooledLists<MarkId>;

    [[nodiscard]] bool isNameOf(NameId id, std::string_view name) const noexcept {
        return id < names_.size() && names_.name(id) == name;
    }
    /// The id of the name. A new name gets the next id.
    NameId idOf(std::string_view name, NameId hint);

    NameTable names_;
    std::vector<Marks::List> lists_;  // by the id of the name
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
        try {
            each(mark);
        } catch (...) {
            ++open_;
            throw;
        }
    });
}

}  // namespace quillmark
