#pragma once

#include <cstddef>

#include "contents/entries/contents_entry_list.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// Writes the contents as plain links at the insertion point of `page`: a base target, a heading,
/// and one line per entry, indented by its level. The texts of the entries are already HTML. See
/// `IndentBudget` for entries with an absurd level.
void writeStaticListing(const ContentsEntryList& entries, DocHtmlPage& page);

/// The number of bytes that `writeStaticListing` writes.
[[nodiscard]] std::size_t staticListingSize(const ContentsEntryList& entries);

}  // namespace quillmark
