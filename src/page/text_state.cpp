#include "page/text_state.h"

namespace quillmark {

void FontData::clear() {
    *this = FontData();
    name.clear();
}

bool operator!=(const FontData& a, const FontData& b) noexcept {
    return !(a.name == b.name) || a.size != b.size || a.bold != b.bold || a.italic != b.italic ||
           a.underline != b.underline || a.strike != b.strike;
}

void DocHtmlTextState::reset() {
    textAlign = TextAlign::none;
    styleName = "Normal";
    fontOpen = false;
}

void DocHtmlTextState::recode(Recoding& recoding) {
    recoding.add(styleName);
    recoding.add(font.name);
}

}  // namespace quillmark
