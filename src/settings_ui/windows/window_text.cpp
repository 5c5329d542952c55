#include "settings_ui/windows/window_text.h"

#include "foundation/utf8.h"

namespace quillmark {

std::wstring windowText(std::string_view utf8) {
    const std::u16string text = utf8::toUtf16(utf8);
    return {text.begin(), text.end()};
}

OrxString pageText(std::wstring_view text) {
    return utf8::fromUtf16(std::u16string(text.begin(), text.end()));
}

}  // namespace quillmark
