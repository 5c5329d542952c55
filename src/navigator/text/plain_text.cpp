#include "navigator/text/plain_text.h"

#include "navigator/text/html_reference.h"
#include "navigator/text/utf16.h"

namespace quillmark::plain_text {

namespace {

constexpr char32_t ellipsis = 0x2026;

bool isBlank(char32_t point) noexcept {
    return point <= 0x20 || point == 0x7F || point == 0xA0;
}

std::string withoutLineBreaks(std::string_view html) {
    constexpr std::string_view lineBreak = "<BR>\n";
    std::string text;
    text.reserve(html.size());
    for (std::size_t hit = html.find(lineBreak); hit != std::string_view::npos;
         hit = html.find(lineBreak)) {
        text.append(html.substr(0, hit)).append(1, ' ');
        html.remove_prefix(hit + lineBreak.size());
    }
    return text.append(html);
}

/// Collects code points, blanks joined.
class BlankJoiner {
public:
    void add(char32_t point) {
        if (isBlank(point)) {
            blankWaits_ = !text_.empty();
            return;
        }
        if (blankWaits_) {
            put(U' ');
            blankWaits_ = false;
        }
        put(point);
    }

    [[nodiscard]] std::u16string take() {
        if (count_ > longest) {
            text_.resize(cut_);
            utf16::append(text_, ellipsis);
        }
        return std::move(text_);
    }

private:
    void put(char32_t point) {
        if (++count_ == longest) {
            cut_ = text_.size();
        }
        if (count_ <= longest) {
            utf16::append(text_, point);
        }
    }

    std::u16string text_;
    std::size_t count_ = 0;
    /// Where the last code point of a text of full length begins.
    std::size_t cut_ = 0;
    bool blankWaits_ = false;
};

}  // namespace

void appendDecoded(std::u16string& out, std::u16string_view html) {
    std::size_t copied = 0;
    for (std::size_t at = html.find(u'&'); at != std::u16string_view::npos;
         at = html.find(u'&', at)) {
        const HtmlReference reference = html_reference::at(html.substr(at));
        if (reference.length == 0) {
            ++at;
            continue;
        }
        out.append(html.substr(copied, at - copied));
        utf16::append(out, reference.point);
        at += reference.length;
        copied = at;
    }
    out.append(html.substr(copied));
}

std::u16string ofHtml(std::string_view html, const TextDecoder& decoder) {
    std::u16string wide;
    decoder.append(wide, withoutLineBreaks(html));
    std::u16string decoded;
    appendDecoded(decoded, wide);
    BlankJoiner joiner;
    for (std::size_t at = 0; at < decoded.size();) {
        joiner.add(utf16::take(decoded, at));
    }
    return joiner.take();
}

}  // namespace quillmark::plain_text
