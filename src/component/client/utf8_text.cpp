#include <array>
#include <cstdint>
#include <string>

#include "dochtml/client.h"

namespace quillmark {
namespace {

constexpr std::uint32_t replacement = 0xFFFD;

/// Takes one character off the front of a text that is not empty.
std::uint32_t takeCharacter(std::string_view& rest) noexcept {
    const auto lead = static_cast<unsigned char>(rest.front());
    rest.remove_prefix(1);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    constexpr std::array<std::uint32_t, 4> leastOf = {0, 0x80, 0x800, 0x10000};
    std::uint32_t value = lead & (0x3FU >> following);
    if (lead < 0xC2 || lead > 0xF4 || rest.size() < following) {
        return replacement;
    }
    for (std::size_t i = 0; i < following; ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        if ((byte & 0xC0) != 0x80) {
            return replacement;
        }
        value = value << 6 | (byte & 0x3FU);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < leastOf[following] || value > 0x10FFFF || isSurrogate) {
        return replacement;
    }
    rest.remove_prefix(following);
    return value;
}

}  // namespace

Text textFromUtf8(std::string_view utf8) {
    std::u16string units;
    units.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::uint32_t character = takeCharacter(utf8);
        if (character < 0x10000) {
            units += static_cast<char16_t>(character);
        } else {
            units += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return Text(units);
}

}  // namespace quillmark
