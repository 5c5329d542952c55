#include "contents/tree/tree_text.h"

#include <array>
#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

namespace {

/// What a byte needs: nothing, a check for an escape, or, for line ends, the slow conversion.
enum class ByteKind : unsigned char { plain, escape, lineEnd };

constexpr std::array<ByteKind, 256> kinds = [] {
    std::array<ByteKind, 256> table{};
    table['\\'] = ByteKind::escape;
    table['"'] = ByteKind::escape;
    table['&'] = ByteKind::escape;
    table['\r'] = ByteKind::lineEnd;
    table['\n'] = ByteKind::lineEnd;
    return table;
}();

ByteKind kindOf(char c) noexcept {
    return kinds[static_cast<unsigned char>(c)];
}

/// The order matters: a later step sees the result of an earlier one, so "&lt;BR>" with a line feed
/// is dropped like a line break.
void appendStepByStep(std::string& out, std::string_view text) {
    OrxString converted(text);
    converted.replaceStr("\\", "\\\\");
    converted.replaceStr("\"", "\\\"");
    converted.replaceStr("&lt;", "<");
    converted.replaceStr("&nbsp;", " ");
    converted.replaceStr("\r", "");
    converted.replaceStr("<BR>\n", "");
    out.append(converted);
}

/// Converts and appends the front of `text`. Returns how many bytes of `text` it consumed.
std::size_t appendFront(std::string& out, std::string_view text) {
    constexpr std::string_view lessThan = "&lt;";
    constexpr std::string_view blank = "&nbsp;";
    if (text.starts_with(lessThan)) {
        out.push_back('<');
        return lessThan.size();
    }
    if (text.starts_with(blank)) {
        out.push_back(' ');
        return blank.size();
    }
    if (text.front() != '&') {
        out.push_back('\\');
    }
    out.push_back(text.front());
    return 1;
}

}  // namespace

// Nearly every text is free of line ends. Then the steps do not affect each other, and one pass is
// enough.
void appendTreeText(std::string& out, std::string_view text) {
    const std::size_t start = out.size();
    std::size_t copied = 0;
    for (std::size_t at = 0; at < text.size();) {
        const ByteKind kind = kindOf(text[at]);
        if (kind == ByteKind::plain) {
            ++at;
            continue;
        }
        if (kind == ByteKind::lineEnd) {
            out.resize(start);
            appendStepByStep(out, text);
            return;
        }
        out.append(text, copied, at - copied);
        at += appendFront(out, text.substr(at));
        copied = at;
    }
    out.append(text, copied);
}

}  // namespace quillmark
