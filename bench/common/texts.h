#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace quillmark::bench {

/// A paragraph of that many words, always the same for the same number.
[[nodiscard]] std::u16string words(std::size_t count);
/// The same of other words.
[[nodiscard]] std::u16string wordsOf(std::size_t count,
                                     std::initializer_list<std::u16string_view> vocabulary);

/// The prefix with the number behind it.
[[nodiscard]] std::u16string numbered(const char16_t* prefix, std::size_t number);

/// How the name of every tag begins: as the 8-bit file system sees it, and as the host tells it.
inline constexpr std::string_view tagOpening = "GUID-";
[[nodiscard]] std::u16string tagName(std::size_t number);

}  // namespace quillmark::bench
