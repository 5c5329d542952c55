#include "toc/tree_text.h"

#include <algorithm>

#include "foundation/orx_string.h"

namespace quillmark {

namespace {

/// Whether a conversion may apply: each of them needs one of these bytes.
bool needsLook(char c) noexcept {
    return c == '\\' || c == '"' || c == '&' || c == '\r' || c == '\n';
}

}  // namespace

void appendTreeText(std::string& out, std::string_view text) {
    if (std::none_of(text.begin(), text.end(), needsLook)) {
        out.append(text);
        return;
    }
    // One after the other, in this order: a later step sees what an earlier one has made, so
    // that "&lt;BR>" and a line feed are dropped like a line break.
    OrxString converted(text);
    converted.replaceStr("\\", "\\\\");
    converted.replaceStr("\"", "\\\"");
    converted.replaceStr("&lt;", "<");
    converted.replaceStr("&nbsp;", " ");
    converted.replaceStr("\r", "");
    converted.replaceStr("<BR>\n", "");
    out.append(converted);
}

}  // namespace quillmark
