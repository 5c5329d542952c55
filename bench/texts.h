#pragma once

#include <cstddef>
#include <string>

namespace quillmark::bench {

/// A paragraph of that many words, always the same for the same number.
[[nodiscard]] std::u16string words(std::size_t count);

/// The prefix with the number behind it.
[[nodiscard]] std::u16string numbered(const char16_t* prefix, std::size_t number);

}  // namespace quillmark::bench
