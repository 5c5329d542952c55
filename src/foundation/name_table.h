#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/packed_strings.h"

namespace quillmark {

/// Gives every distinct name a small number, in the order in which the names first come.
///
/// A flat table with open addressing, made when the names are more than a few: finding a name
/// costs one probe or two however many there are. Names are compared byte by byte; nothing is ever
/// removed but by `clear`.
class NameTable {
public:
    using Id = std::uint32_t;
    static constexpr Id none = 0xFFFFFFFF;

    /// The number of the name, or `none`.
    [[nodiscard]] Id find(std::string_view name) const noexcept;
    /// The number of the name, given to it now when it is new.
    Id add(std::string_view name);
    /// The name of a number; the view lives until the next `add`.
    [[nodiscard]] std::string_view name(Id id) const noexcept { return names_[id]; }
    [[nodiscard]] std::size_t size() const noexcept { return names_.size(); }
    void clear() noexcept;
    /// Gives back memory held for growth.
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
    std::vector<Slot> slots_;  // none, or a power of two and at most three quarters full
};

}  // namespace quillmark
