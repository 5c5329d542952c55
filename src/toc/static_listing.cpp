#include "toc/static_listing.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "toc/indent_budget.h"

namespace quillmark {

namespace {

constexpr std::string_view indentUnit = "&nbsp;&nbsp;&nbsp;";

std::size_t indentUnits(std::int32_t level) noexcept {
    return level > 1 ? static_cast<std::size_t>(level) - 1 : 0;
}

/// Writes one entry; `scratch` only lends its memory from entry to entry.
void writeEntry(const TocEntryView& entry, IndentBudget& budget, DocHtmlPage& page,
                std::string& scratch) {
    const std::size_t units = budget.take(indentUnits(entry.level), indentUnit.size());
    scratch.clear();
    for (std::size_t i = 0; i < units; ++i) {
        scratch.append(indentUnit);
    }
    if (!scratch.empty()) {
        page.append(scratch);
    }
    scratch.assign("<A HREF=\"").append(entry.href).append("\">").append(entry.text).append("</a>");
    page.append(scratch);
    page.append("<BR>\n");
}

}  // namespace

void writeStaticListing(const TocEntryList& entries, DocHtmlPage& page) {
    page.append("<BASE TARGET=\"main\">\n");
    page.append("<H2>Table of Contents</H2>\n");
    IndentBudget budget;
    std::string scratch;
    for (const TocEntryView entry : entries) {
        writeEntry(entry, budget, page, scratch);
    }
}

}  // namespace quillmark
