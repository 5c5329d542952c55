#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmark::replay {

/// A JSON text may name half of a surrogate pair alone (`"\ud800"`), which a host's text may hold
/// but JSON readers refuse. This puts the three bytes of that unit in the place of each such
/// escape, which a reader lets through. Returns the new size; it differs from the old one exactly
/// when there was such an escape. A line that holds such bytes already is left alone.
[[nodiscard]] std::size_t foldLoneSurrogates(std::span<char> line) noexcept;

}  // namespace quillmark::replay
