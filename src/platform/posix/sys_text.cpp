#include "platform/sys_text.h"

#include "foundation/code_page.h"

namespace quillmark {

void SysText::appendNarrow(std::string& out, std::u16string_view text) {
    code_page::appendNarrowed(out, text);
}

OrxString SysText::narrow(std::u16string_view text) {
    std::string bytes;
    code_page::appendNarrowed(bytes, text);
    return bytes;
}

std::u16string SysText::widen(std::string_view text) {
    return code_page::widened(text);
}

std::string SysText::codePageName() {
    return "Windows-1252";
}

}  // namespace quillmark
