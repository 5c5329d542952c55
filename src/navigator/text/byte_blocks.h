#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// Eight bytes of a text at a time, as a number whose lowest byte is the first one.
namespace quillmark::byte_blocks {

inline constexpr std::size_t size = sizeof(std::uint64_t);

[[nodiscard]] constexpr std::uint64_t everyByte(std::uint64_t byte) noexcept {
    return byte * 0x0101010101010101U;
}

/// Between eight bytes in memory and a number whose lowest byte is the first one.
[[nodiscard]] constexpr std::uint64_t inOrder(std::uint64_t bytes) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        return bytes;
    }
    std::uint64_t swapped = 0;
    for (std::size_t i = 0; i < size; ++i) {
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

}  // namespace quillmark::byte_blocks
