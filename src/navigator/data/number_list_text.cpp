#include "navigator/data/number_list_text.h"

#include <cstddef>

namespace quillmark::number_list_text {

namespace {

constexpr std::uint32_t gapBase = 32;
constexpr std::uint32_t bitsEach = 6;

void appendGap(std::string& out, std::uint32_t gap) {
    std::uint32_t shift = 0;
    while (shift + 5 < 32 && (gap >> (shift + 5)) != 0) {
        shift += 5;
    }
    for (; shift != 0; shift -= 5) {
        out.push_back(alphabet[gapBase + ((gap >> shift) % gapBase)]);
    }
    out.push_back(alphabet[gap % gapBase]);
}

void appendGaps(std::string& out, std::span<const std::uint32_t> numbers) {
    std::uint32_t expected = 0;
    for (const std::uint32_t number : numbers) {
        appendGap(out, number - expected);
        expected = number + 1;
    }
}

void appendBits(std::string& out, std::span<const std::uint32_t> numbers) {
    out.push_back('.');
    std::uint32_t place = 0;
    std::uint32_t value = 0;
    for (const std::uint32_t number : numbers) {
        for (; place < number / bitsEach; ++place) {
            out.push_back(alphabet[value]);
            value = 0;
        }
        value |= 1U << (number % bitsEach);
    }
    out.push_back(alphabet[value]);
}

}  // namespace

void append(std::string& out, std::span<const std::uint32_t> numbers) {
    if (numbers.empty()) {
        return;
    }
    const std::size_t start = out.size();
    appendGaps(out, numbers);
    const std::size_t bitsLength = std::size_t{numbers.back() / bitsEach} + 2;
    if (out.size() - start > bitsLength) {
        out.resize(start);
        appendBits(out, numbers);
    }
}

}  // namespace quillmark::number_list_text
