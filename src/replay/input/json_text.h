#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmark::replay {

/// Writes the UTF-16 form of `utf8` to `out`, which has room for as many units as there are bytes.
/// Returns the end of what was written, or null when the bytes are not UTF-8. Three bytes that
/// stand for a lone surrogate are taken only when `surrogates` says so.
[[nodiscard]] char16_t* decodeUtf8(std::string_view utf8, char16_t* out, bool surrogates) noexcept;

/// A JSON text may name half of a surrogate pair alone (`"\ud800"`), which a host's text may hold
/// but JSON readers refuse. This puts the three bytes of that unit in the place of each such
/// escape, which a reader lets through. Returns the new size; it differs from the old one exactly
/// when there was such an escape. A line that holds such bytes already is left alone.
[[nodiscard]] std::size_t foldLoneSurrogates(std::span<char> line) noexcept;

}  // namespace quillmark::replay
