#include "driver/text/escape_text.h"

#include <cstddef>

namespace quillmark {

namespace {

constexpr std::string_view tabText = "&nbsp;&nbsp; ";
constexpr std::string_view lineFeedText = "<BR>\n";
constexpr std::string_view twoBlanksText = "&nbsp; ";
constexpr std::string_view twoAnglesText = "&lt;&lt;";

/// Whether anything may change. Nearly every text is plain, so the loop has few operations and no
/// branches: the compiler can vectorise it. A false alarm, from a control code beside the tab or
/// from a zero byte, only costs time.
bool hasStop(std::string_view text, bool passThrough) noexcept {
    if (text.empty()) {
        return false;
    }
    const char* const bytes = text.data();
    const std::size_t last = text.size() - 1;
    unsigned char stops = 0;
    for (std::size_t i = 0; i < last; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const auto next = static_cast<unsigned char>(bytes[i + 1]);
        // The codes 8 to 11, of which 9 is the tab and 10 the line feed; two blanks.
        stops |= static_cast<unsigned char>((byte & 0xFCU) == 8) |
                 static_cast<unsigned char>((byte | next) == ' ');
    }
    return stops != 0 || bytes[last] == '\t' || bytes[last] == '\n' ||
           (passThrough && text.find("<<") != std::string_view::npos);
}

/// The HTML for the text at a position, and how many bytes of the text it replaces. A length of 0
/// means that nothing changes there.
struct Replacement {
    std::string_view html;
    std::size_t length = 0;
};

Replacement replacementAt(std::string_view text, std::size_t pos, bool passThrough) noexcept {
    const bool doubled = pos + 1 < text.size() && text[pos + 1] == text[pos];
    switch (text[pos]) {
        case '\t':
            return {tabText, 1};
        case '\n':
            return {lineFeedText, 1};
        case ' ':
            return doubled ? Replacement{twoBlanksText, 2} : Replacement{};
        case '<':
            return doubled && passThrough ? Replacement{twoAnglesText, 2} : Replacement{};
        default:
            return {};
    }
}

}  // namespace

std::string_view escapeText(std::string_view text, bool passThrough, std::string& buffer) {
    if (!hasStop(text, passThrough)) {
        return text;
    }
    buffer.clear();
    std::size_t copied = 0;
    for (std::size_t pos = 0; pos < text.size();) {
        const Replacement replacement = replacementAt(text, pos, passThrough);
        if (replacement.length == 0) {
            ++pos;
            continue;
        }
        buffer.append(text, copied, pos - copied).append(replacement.html);
        pos += replacement.length;
        copied = pos;
    }
    return buffer.append(text, copied);
}

}  // namespace quillmark
