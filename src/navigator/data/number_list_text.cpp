#include "navigator/data/number_list_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace quillmark::number_list_text {

namespace {

constexpr std::uint32_t gapBase = 32;
constexpr unsigned bitsPerGroup = 5;
constexpr std::size_t mostGroups = 7;
constexpr std::uint32_t bitsEach = 6;

/// A gap as it is written: up to two characters.
struct ShortGap {
    std::array<char, 2> text;
    unsigned char length;
};

constexpr std::uint32_t firstLongGap = gapBase * gapBase;
constexpr auto shortGaps = [] {
    std::array<ShortGap, firstLongGap> gaps{};
    for (std::uint32_t gap = 0; gap < gaps.size(); ++gap) {
        const char last = alphabet[gap % gapBase];
        gaps[gap] = gap < gapBase ? ShortGap{{last, '\0'}, 1}
                                  : ShortGap{{alphabet[gapBase + gap / gapBase], last}, 2};
    }
    return gaps;
}();

char* writeLongGap(char* to, std::uint32_t gap) noexcept {
    const unsigned groups =
        (static_cast<unsigned>(std::bit_width(gap)) + bitsPerGroup - 1) / bitsPerGroup;
    for (unsigned rest = groups - 1; rest != 0; --rest) {
        *to++ = alphabet[gapBase + ((gap >> (bitsPerGroup * rest)) % gapBase)];
    }
    *to++ = alphabet[gap % gapBase];
    return to;
}

/// Nearly all gaps are short, and their length cannot be predicted.
char* writeGap(char* to, std::uint32_t gap) noexcept {
    if (gap >= firstLongGap) {
        return writeLongGap(to, gap);
    }
    const ShortGap& text = shortGaps[gap];
    to[0] = text.text[0];
    to[1] = text.text[1];
    return to + text.length;
}

void appendGaps(std::string& out, std::span<const std::uint32_t> numbers) {
    constexpr std::size_t atOnce = 64;
    std::array<char, atOnce * mostGroups> buffer{};
    std::uint32_t expected = 0;
    while (!numbers.empty()) {
        const auto some = numbers.first(std::min(numbers.size(), atOnce));
        char* to = buffer.data();
        for (const std::uint32_t number : some) {
            to = writeGap(to, number - expected);
            expected = number + 1;
        }
        out.append(buffer.data(), to);
        numbers = numbers.subspan(some.size());
    }
}

void appendBits(std::string& out, std::span<const std::uint32_t> numbers) {
    out.push_back('.');
    const std::size_t start = out.size();
    out.resize(start + numbers.back() / bitsEach + 1, '\0');
    const std::span to = std::span(out).subspan(start);
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
    const std::size_t start = out.size();
    const std::size_t bitsLength = std::size_t{numbers.back() / bitsEach} + 2;
    // Each gap takes a character at least.
    if (numbers.size() <= bitsLength) {
        appendGaps(out, numbers);
        if (out.size() - start <= bitsLength) {
            return;
        }
        out.resize(start);
    }
    appendBits(out, numbers);
}

}  // namespace quillmark::number_list_text
