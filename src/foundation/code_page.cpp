#include "foundation/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace quillmark::code_page {

namespace {

/// The characters of the bytes 0x80 to 0x9F. Five of these bytes are unassigned. They map to the
/// control codes of the same value, as in the Windows table.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char narrowed(char16_t unit) noexcept {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(unit));
    }
    const auto* const hit = std::find(upperControls.begin(), upperControls.end(), unit);
    return hit == upperControls.end() ? '?'
                                      : static_cast<char>(0x80 + (hit - upperControls.begin()));
}

}  // namespace

bool isAscii(std::u16string_view text) noexcept {
    // Without an early end the compiler can vectorize the loop. Nearly every text is ASCII.
    std::uint16_t seen = 0;
    for (const char16_t unit : text) {
        seen = static_cast<std::uint16_t>(seen | unit);
    }
    return seen < 0x80;
}

bool copyAscii(char* target, std::u16string_view text) noexcept {
    // Without an early end the compiler can vectorize the loop.
    const char16_t* const units = text.data();
    const std::size_t size = text.size();
    std::uint16_t seen = 0;
    for (std::size_t i = 0; i < size; ++i) {
        seen = static_cast<std::uint16_t>(seen | units[i]);
        target[i] = static_cast<char>(static_cast<unsigned char>(units[i]));
    }
    return seen < 0x80;
}

void appendNarrowed(std::string& out, std::u16string_view text) {
    const std::size_t start = out.size();
    out.resize(start + text.size());
    char* const target = out.data() + start;
    if (!copyAscii(target, text)) {
        std::transform(text.begin(), text.end(), target, narrowed);
    }
}

std::u16string widened(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool upperControl = byte >= 0x80 && byte <= 0x9F;
        text.push_back(upperControl ? upperControls.at(byte - 0x80U) : char16_t{byte});
    }
    return text;
}

}  // namespace quillmark::code_page
