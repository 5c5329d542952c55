#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// The position of an open mark in a page.
struct htmlMarkPosition {
    static constexpr std::uint32_t unset = 0xFFFFFFFF;

    std::uint32_t line = unset;
    /// Counted from 1; a mark at the end of a line of length n has column n + 1.
    std::uint32_t column = unset;
    /// The markup to insert when the target is known. Empty for a bare reference.
    OrxString markup;
    /// The number of open marks on the page when this one was added, plus 1.
    std::uint32_t sequence = 0;
};

}  // namespace quillmark
