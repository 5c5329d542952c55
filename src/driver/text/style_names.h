#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "foundation/decimal.h"

/// What the name of a paragraph style says: its kind by its beginning, compared exactly, and its
/// level by the number after that.
namespace quillmark::style_names {

inline constexpr std::string_view heading = "Heading";
inline constexpr std::string_view numberedList = "List Number";
inline constexpr std::string_view bulletedList = "List Bullet";
/// Every list, numbered and bulleted ones included.
inline constexpr std::string_view list = "List";
/// The lists whose style starts a new item; "List1" does not.
inline constexpr std::string_view listWithBlank = "List ";

/// The number after the prefix and one more character, whatever those characters are: "Heading 3"
/// has level 3, and so has "Heading-3". "Heading2" has level 1, because its digit is skipped. No
/// number and the number 0 mean level 1.
[[nodiscard]] inline std::int32_t levelAfter(std::string_view prefix,
                                             std::string_view name) noexcept {
    const std::size_t skipped = std::min(prefix.size() + 1, name.size());
    const std::int32_t level = leadingInteger(name.substr(skipped));
    return level == 0 ? 1 : level;
}

}  // namespace quillmark::style_names
