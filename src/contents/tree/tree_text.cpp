#include "contents/tree/tree_text.h"

#include <array>
#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

namespace {

/// What a byte calls for: nothing, a look at what stands there, or, where line ends are, the
/// conversions one after the other.
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

/// One after the other, in this order: a later step sees what an earlier one has made, so that
/// "&lt;BR>" and a line feed are dropped like a line break.
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

/// Appends what stands at the front of `text` converted; returns how much of it that was.
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

// Nearly every text has no line end. Then no step can see what another one makes, and one pass
// does for all.
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
