#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/packed_strings.h"

namespace quillmark {

/// Assigns an id to every distinct name: 0 to the first name added, 1 to the next, and so on.
///
/// Names are compared byte by byte and are never removed. A hash table with open addressing keeps
/// the cost of a search constant. It is built when there are more than a few names.
class NameTable {
public:
    using Id = std::uint32_t;
    static constexpr Id none = 0xFFFFFFFF;

    /// The id of the name, or `none`.
    [[nodiscard]] Id find(std::string_view name) const noexcept;
    /// The id of the name. A new name gets the next id.
    Id add(std::string_view name);
    /// The name with this id. The view is valid until the next `add`.
    [[nodiscard]] std::string_view name(Id id) const noexcept { return names_[id]; }
    [[nodiscard]] std::size_t size() const noexcept { return names_.size(); }
    /// Releases memory reserved for growth.
    void compact() { names_.compact(); }

private:
    struct Slot {
        std::uint32_t hash = 0;
        Id id = none;
    };

    [[nodiscard]] Id findAmongFew(std::string_view name) const noexcept;
    [[nodiscard]] std::size_t slotOf(std::string_view name, std::uint32_t hash) const noexcept;
    void grow();

    PackedStrings names_;
    std::vector<Slot> slots_;  // empty, or a power of two in size and at most three quarters full
};

}  // namespace quillmark
