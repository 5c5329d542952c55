#include "navigator/data/json_text.h"

namespace quillmark::json_text {

namespace {

bool standsForItself(char16_t unit) noexcept {
    return unit >= u' ' && unit <= u'~' && unit != u'"' && unit != u'\'' && unit != u'\\' &&
           unit != u'<';
}

void appendEscape(std::string& out, char16_t unit) {
    constexpr std::string_view digits = "0123456789abcdef";
    out.append("\\\\u");
    for (unsigned shift = 16; shift != 0;) {
        shift -= 4;
        out.push_back(digits[(static_cast<unsigned>(unit) >> shift) & 0xFU]);
    }
}

}  // namespace

void appendCharacters(std::string& out, std::u16string_view text) {
    for (const char16_t unit : text) {
        if (standsForItself(unit)) {
            out.push_back(static_cast<char>(unit));
        } else {
            appendEscape(out, unit);
        }
    }
}

void appendString(std::string& out, std::u16string_view text) {
    out.push_back('"');
    appendCharacters(out, text);
    out.push_back('"');
}

void appendNumber(std::string& out, std::uint32_t number) {
    out.append(std::to_string(number));
}

}  // namespace quillmark::json_text
