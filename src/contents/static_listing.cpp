#include "contents/static_listing.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "contents/entries/indent_budget.h"

namespace quillmark {

namespace {

constexpr std::string_view baseTarget = "<BASE TARGET=\"main\">\n";
constexpr std::string_view heading = "<H2>Table of Contents</H2>\n";
constexpr std::string_view indentMarkup = "&nbsp;&nbsp;&nbsp;";

std::size_t indentUnits(std::int32_t level) noexcept {
    return level > 1 ? static_cast<std::size_t>(level) - 1 : 0;
}

constexpr std::string_view linkOpening = "<A HREF=\"";
constexpr std::string_view linkMiddle = "\">";
constexpr std::string_view linkEnd = "</a>";
constexpr std::string_view entryEnd = "<BR>\n";

/// Writes one entry. `scratch` is only passed in to reuse its memory.
void writeEntry(const ContentsEntryView& entry, IndentBudget& budget, DocHtmlPage& page,
                std::string& scratch) {
    const std::size_t units = budget.take(indentUnits(entry.level), indentMarkup.size());
    scratch.clear();
    for (std::size_t i = 0; i < units; ++i) {
        scratch.append(indentMarkup);
    }
    if (!scratch.empty()) {
        page.append(scratch);
    }
    scratch.assign(linkOpening).append(entry.href).append(linkMiddle);
    scratch.append(entry.text).append(linkEnd);
    page.append(scratch);
    page.append(entryEnd);
}

}  // namespace

std::size_t staticListingSize(const ContentsEntryList& entries) {
    constexpr std::size_t linkSize =
        linkOpening.size() + linkMiddle.size() + linkEnd.size() + entryEnd.size();
    std::size_t size = baseTarget.size() + heading.size() + entries.size() * linkSize;
    IndentBudget budget;
    for (const ContentsEntryView entry : entries) {
        const std::size_t units = budget.take(indentUnits(entry.level), indentMarkup.size());
        size += units * indentMarkup.size() + entry.href.size() + entry.text.size();
    }
    return size;
}

void writeStaticListing(const ContentsEntryList& entries, DocHtmlPage& page) {
    page.append(baseTarget);
    page.append(heading);
    IndentBudget budget;
    std::string scratch;
    for (const ContentsEntryView entry : entries) {
        writeEntry(entry, budget, page, scratch);
    }
}

}  // namespace quillmark
