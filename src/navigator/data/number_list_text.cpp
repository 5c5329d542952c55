#include "navigator/data/number_list_text.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace quillmark::number_list_text {

namespace {

constexpr std::uint32_t gapBase = 32;
constexpr std::uint32_t bitsEach = 6;

/// How many characters a gap takes.
std::size_t gapLength(std::uint32_t gap) noexcept {
    return gap < gapBase ? 1 : (static_cast<std::size_t>(std::bit_width(gap)) + 4) / 5;
}

template <typename Each>
void forEachGap(std::span<const std::uint32_t> numbers, const Each& each) {
    std::uint32_t expected = 0;
    for (const std::uint32_t number : numbers) {
        each(number - expected);
        expected = number + 1;
    }
}

char* writeGap(char* to, std::uint32_t gap) noexcept {
    for (std::size_t rest = gapLength(gap) - 1; rest != 0; --rest) {
        *to++ = alphabet[gapBase + ((gap >> (5 * rest)) % gapBase)];
    }
    *to++ = alphabet[gap % gapBase];
    return to;
}

void writeBits(std::span<char> to, std::span<const std::uint32_t> numbers) {
    std::ranges::fill(to, '\0');
    for (const std::uint32_t number : numbers) {
        char& value = to[number / bitsEach];
        value = static_cast<char>(static_cast<unsigned>(value) | (1U << (number % bitsEach)));
    }
    std::ranges::transform(to, to.begin(),
                           [](char value) { return alphabet[static_cast<unsigned char>(value)]; });
}

}  // namespace

void append(std::string& out, std::span<const std::uint32_t> numbers) {
    if (numbers.empty()) {
        return;
    }
    std::size_t gapsLength = 0;
    forEachGap(numbers, [&](std::uint32_t gap) { gapsLength += gapLength(gap); });
    const std::size_t bitsLength = std::size_t{numbers.back() / bitsEach} + 2;
    const std::size_t start = out.size();
    if (gapsLength <= bitsLength) {
        out.resize(start + gapsLength);
        char* to = out.data() + start;
        forEachGap(numbers, [&](std::uint32_t gap) { to = writeGap(to, gap); });
    } else {
        out.resize(start + bitsLength);
        out[start] = '.';
        writeBits(std::span(out).subspan(start + 1), numbers);
    }
}

}  // namespace quillmark::number_list_text
