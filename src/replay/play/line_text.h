#pragma once

#include <string_view>

namespace quillmark::replay {

/// The text without the line ends at its end.
[[nodiscard]] constexpr std::string_view withoutLineEnds(std::string_view text) noexcept {
    while (text.ends_with('\n') || text.ends_with('\r')) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace quillmark::replay
