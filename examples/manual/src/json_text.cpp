#include "json_text.h"

namespace quillmark::manual {

namespace {

std::string controlCharacter(unsigned char code) {
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\u00") + digits[code >> 4] + digits[code & 15];
}

}  // namespace

std::string jsonText(std::string_view text) {
    std::string json = "\"";
    for (const char character : text) {
        switch (character) {
            case '"':
            case '\\':
                json += '\\';
                json += character;
                break;
            case '\n':
                json += "\\n";
                break;
            case '\t':
                json += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(character) < 0x20) {
                    json += controlCharacter(static_cast<unsigned char>(character));
                } else {
                    json += character;
                }
        }
    }
    return json + '"';
}

}  // namespace quillmark::manual
