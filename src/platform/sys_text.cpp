#include "platform/sys_text.h"

#include "foundation/code_page.h"
#include "foundation/surrogates.h"
#include "foundation/utf8.h"

namespace quillmark {

OrxString SysText::fromUtf8(std::string_view utf8) {
    return narrow(utf8::toUtf16(utf8));
}

std::string SysText::toUtf8(std::string_view text) {
    return utf8::fromUtf16(widen(text));
}

bool SysText::holds(std::u16string_view text) {
    return code_page::isAscii(text) || widen(narrow(text)) == text;
}

bool SysText::holdsUtf8(std::string_view utf8) {
    return toUtf8(fromUtf8(utf8)) == utf8;
}

std::size_t SysText::countLost(std::u16string_view text) {
    if (holds(text)) {
        return 0;
    }
    std::size_t lost = 0;
    while (!text.empty()) {
        const std::size_t length = surrogates::firstLength(text);
        lost += holds(text.substr(0, length)) ? 0 : 1;
        text.remove_prefix(length);
    }
    return lost;
}

}  // namespace quillmark
