#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// A place in a page where text can still be put.
struct htmlMarkPosition {
    static constexpr std::uint32_t unset = 0xFFFFFFFF;

    std::uint32_t line = unset;
    /// Counted from 1; a mark at the end of a line of length n has column n + 1.
    std::uint32_t column = unset;
    /// What must be put there once the target is known; empty for a bare reference.
    OrxString markup;
    /// The number of marks on the page at its making plus 1.
    std::uint32_t sequence = 0;

    [[nodiscard]] bool isSet() const noexcept { return column < unset; }
    void reset() noexcept {
        line = unset;
        column = unset;
    }
};

}  // namespace quillmark
