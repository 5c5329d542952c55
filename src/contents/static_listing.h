#pragma once

#include <cstddef>

#include "contents/entries/contents_entry_list.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// Writes the contents as plain links into `page`, where its insertion point stands: a base
/// target, a heading, and one line an entry, indented by its level. The entries' texts are HTML
/// and are written as they stand. See `IndentBudget` for levels that no page can show.
void writeStaticListing(const ContentsEntryList& entries, DocHtmlPage& page);

/// How many bytes that writes.
[[nodiscard]] std::size_t staticListingSize(const ContentsEntryList& entries);

}  // namespace quillmark
