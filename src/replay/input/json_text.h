#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmark::replay {

/// Replaces each escape of a lone surrogate (`"\ud800"`) in a JSON line by the three bytes that
/// encode it. A text of a host may contain one, but RapidJSON refuses the escape. Returns the new
/// size, which is smaller than the old one if there was such an escape. A line that already
/// contains such bytes is not changed.
[[nodiscard]] std::size_t foldLoneSurrogates(std::span<char> line) noexcept;

}  // namespace quillmark::replay
