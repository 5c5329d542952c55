#include "support/fields.h"

#include <charconv>
#include <cstdint>
#include <optional>

#include "foundation/surrogates.h"
#include "foundation/utf8.h"

namespace quillmark::fuzzing {
namespace {

constexpr std::size_t unitDigits = 4;
constexpr std::size_t byteDigits = 2;

/// The number in the hexadecimal digits at the front of `text`.
std::optional<std::uint16_t> digits(std::string_view text, std::size_t count) {
    std::uint16_t number = 0;
    const char* const end = text.data() + count;
    const bool isNumber =
        text.size() >= count && std::from_chars(text.data(), end, number, 16).ptr == end;
    return isNumber ? std::optional(number) : std::nullopt;
}

/// UTF-8, or the three bytes that encode half a pair.
void appendUnit(std::string& out, std::uint16_t unit) {
    if (!surrogates::isAny(unit)) {
        utf8::append(out, unit);
        return;
    }
    out.push_back(static_cast<char>(0xE0 | unit >> 12U));
    out.push_back(static_cast<char>(0x80 | (unit >> 6U & 0x3FU)));
    out.push_back(static_cast<char>(0x80 | (unit & 0x3FU)));
}

/// Appends the character behind a backslash; returns how many characters it takes.
std::size_t appendEscape(std::string& out, std::string_view text) {
    const std::string_view rest = text.substr(text.empty() ? 0 : 1);
    const char kind = text.empty() ? '\0' : text.front();
    constexpr std::string_view names = "nrt\\";
    constexpr std::string_view characters = "\n\r\t\\";
    if (const std::size_t at = names.find(kind); kind != '\0' && at != std::string_view::npos) {
        out.push_back(characters[at]);
        return 1;
    }
    if (const auto unit = digits(rest, unitDigits); kind == 'u' && unit) {
        appendUnit(out, *unit);
        return 1 + unitDigits;
    }
    if (const auto byte = digits(rest, byteDigits); kind == 'x' && byte) {
        out.push_back(static_cast<char>(*byte));
        return 1 + byteDigits;
    }
    out.push_back('\\');
    return 0;
}

}  // namespace

std::vector<std::string> fieldsOf(std::string_view line) {
    std::vector<std::string> fields(1);
    for (std::size_t at = 0; at < line.size();) {
        const char character = line[at++];
        if (character == '\t') {
            fields.emplace_back();
        } else if (character == '\\') {
            at += appendEscape(fields.back(), line.substr(at));
        } else {
            fields.back().push_back(character);
        }
    }
    return fields;
}

std::u16string wideField(std::string_view field) {
    std::u16string units(field.size(), u'\0');
    const char16_t* const end =
        utf8::decodeStrictly(field, units.data(), utf8::LoneSurrogates::accepted);
    if (end == nullptr) {
        return utf8::toUtf16(field);
    }
    units.resize(static_cast<std::size_t>(end - units.data()));
    return units;
}

}  // namespace quillmark::fuzzing
