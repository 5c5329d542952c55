#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "navigator/text/byte_blocks.h"
#include "navigator/text/short_word.h"

/// ASCII letters and digits, many bytes at a time.
namespace quillmark::ascii_words {

/// Writes letters and digits as they are, capitals as small letters, and a zero for every other
/// byte. `to` has as many bytes as the text.
void fold(std::string_view text, char* to) noexcept;

/// The start of a folded text.
struct Front {
    /// The letters and digits up to the first zero.
    ShortWord word;
    /// How many they are. With the greatest length, more may follow.
    std::size_t length = 0;
};

/// The top bit of the first zero byte, and perhaps of later ones. The other bytes are ASCII.
[[nodiscard]] constexpr std::uint64_t zerosOf(std::uint64_t folded) noexcept {
    return (folded - byte_blocks::everyByte(1)) & byte_blocks::everyByte(0x80);
}

/// All bits of the bytes in front of the first zero byte. Without one, all bits.
[[nodiscard]] constexpr std::uint64_t frontMask(std::uint64_t zeros) noexcept {
    return ((zeros & (~zeros + 1)) >> 7U) - 1;
}

/// Reads 16 bytes. There are no branches, because nothing predicts the length of the next word.
[[nodiscard]] inline Front frontOf(const char* folded) noexcept {
    const std::uint64_t first = byte_blocks::load(folded);
    const std::uint64_t second = byte_blocks::load(folded + byte_blocks::size);
    const std::uint64_t firstZeros = zerosOf(first);
    const std::uint64_t secondZeros = zerosOf(second);
    const std::uint64_t goesOn = firstZeros == 0 ? ~std::uint64_t{0} : 0;
    const auto firstLength = static_cast<std::size_t>(std::countr_zero(firstZeros)) / 8;
    const auto secondLength = static_cast<std::size_t>(std::countr_zero(secondZeros)) / 8;
    return {{first & frontMask(firstZeros), second & frontMask(secondZeros) & goesOn},
            firstLength + (secondLength & static_cast<std::size_t>(goesOn))};
}

}  // namespace quillmark::ascii_words
