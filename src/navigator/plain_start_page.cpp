#include "navigator/plain_start_page.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "navigator/text/plain_text.h"
#include "navigator/text/utf16.h"
#include "page/doc_html_page.h"

namespace quillmark {

namespace {

constexpr std::uint32_t manyEntries = 200;

std::uint32_t deepestShown(const EntryNumbers& numbers) {
    std::uint32_t level = 1;
    std::uint32_t shown = numbers.countOfLevel(1);
    while (level < EntryNumbers::deepestLevel &&
           shown + numbers.countOfLevel(level + 1) <= manyEntries) {
        shown += numbers.countOfLevel(++level);
    }
    return level;
}

std::string_view entityOf(char32_t point) noexcept {
    switch (point) {
        case U'<':
            return "&lt;";
        case U'>':
            return "&gt;";
        case U'&':
            return "&amp;";
        case U'"':
            return "&quot;";
        default:
            return {};
    }
}

/// The text in ASCII, which means the same in every encoding.
std::string asHtml(std::u16string_view text) {
    std::string html;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t point = utf16::take(text, at);
        const std::string_view entity = entityOf(point);
        if (!entity.empty()) {
            html.append(entity);
        } else if (point < 0x7F) {
            html.push_back(static_cast<char>(point));
        } else {
            html.append("&#").append(std::to_string(static_cast<std::uint32_t>(point)));
            html.push_back(';');
        }
    }
    return html;
}

/// Writes entries as nested lists of links.
class NestedLists {
public:
    NestedLists(DocHtmlPage& page, const TextDecoder& decoder) noexcept
        : page_(page), decoder_(decoder) {}

    void add(const ContentsEntryView& entry, std::uint32_t level) {
        if (level > open_) {
            page_.append(open_ == 0 ? "<UL CLASS=\"rn-start\">\n" : "\n<UL>\n");
            ++open_;
        } else {
            page_.append("</LI>\n");
            closeTo(level);
        }
        std::string link("<LI><A HREF=\"");
        link.append(entry.href).append("\">");
        link.append(asHtml(plain_text::ofHtml(entry.text, decoder_))).append("</A>");
        page_.append(link);
    }

    void finish() {
        if (open_ != 0) {
            page_.append("</LI>\n");
            closeTo(1);
            page_.append("</UL>\n");
        }
    }

private:
    void closeTo(std::uint32_t level) {
        for (; open_ > level; --open_) {
            page_.append("</UL></LI>\n");
        }
    }

    DocHtmlPage& page_;
    const TextDecoder& decoder_;
    std::uint32_t open_ = 0;
};

}  // namespace

void PlainStartPage::write(const ContentsEntryList& entries, const EntryNumbers& numbers,
                           const TextDecoder& decoder) const {
    DocHtmlPage page;
    page.setFileName(fileName);
    page.setTitle(title);
    page.setStyleSheet(styleSheetLink);
    page.appendHead(headLines);
    page.append("<BODY " + bodyTags + " >\n");
    const std::u16string heading = plain_text::ofHtml(title, decoder);
    if (!heading.empty()) {
        page.append("<H1>" + asHtml(heading) + "</H1>\n");
    }
    NestedLists lists(page, decoder);
    const std::uint32_t deepest = deepestShown(numbers);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        if (numbers.levelOf(index) <= deepest) {
            lists.add(entries[index], numbers.levelOf(index));
        }
    }
    lists.finish();
    page.append("</BODY>");
    page.close();
}

}  // namespace quillmark
