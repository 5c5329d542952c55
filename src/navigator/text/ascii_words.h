#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// ASCII letters and digits, eight bytes at a time.
namespace quillmark::ascii_words {

struct Block {
    /// The letters and digits at the front, capitals as small letters; zeros behind them.
    std::uint64_t letters;
    /// How many they are, 0 to 8.
    std::size_t length;
};

[[nodiscard]] constexpr std::uint64_t everyByte(std::uint64_t byte) noexcept {
    return byte * 0x0101010101010101U;
}

/// Between eight bytes in memory and a number whose lowest byte is the first one.
[[nodiscard]] constexpr std::uint64_t inOrder(std::uint64_t bytes) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        return bytes;
    }
    std::uint64_t swapped = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i) {
        swapped = (swapped << 8U) | ((bytes >> (8 * i)) & 0xFFU);
    }
    return swapped;
}

[[nodiscard]] inline std::uint64_t load(const char* from) noexcept {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return inOrder(bytes);
}

inline void store(char* to, std::uint64_t bytes) noexcept {
    bytes = inOrder(bytes);
    std::memcpy(to, &bytes, sizeof bytes);
}

/// The top bit of every byte from `first` to `last`. The bytes of `x` are below 0x80.
[[nodiscard]] constexpr std::uint64_t between(std::uint64_t x, std::uint64_t first,
                                              std::uint64_t last) noexcept {
    const std::uint64_t reaches = x + everyByte(0x80 - first);
    const std::uint64_t exceeds = x + everyByte(0x7F - last);
    return reaches & ~exceeds & everyByte(0x80);
}

[[nodiscard]] constexpr Block classify(std::uint64_t bytes) noexcept {
    const std::uint64_t low = bytes & everyByte(0x7F);
    const std::uint64_t capitals = between(low, 'A', 'Z');
    const std::uint64_t letters = capitals | between(low, 'a', 'z') | between(low, '0', '9');
    const std::uint64_t others = (~letters | bytes) & everyByte(0x80);
    const std::uint64_t lower = bytes | (capitals >> 2U);
    if (others == 0) {
        return {lower, 8};
    }
    // All bits below the first other byte: `others` has only top bits of bytes.
    const std::uint64_t front = ((others & (~others + 1)) >> 7U) - 1;
    return {lower & front, static_cast<std::size_t>(std::countr_zero(others)) / 8U};
}

}  // namespace quillmark::ascii_words
