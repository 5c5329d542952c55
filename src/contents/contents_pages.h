#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes everything but the detail pages of a finished document, in this order: the support
/// files, the tree data (packed if there is an archiver), the applet contents, the frame sets for
/// old browsers, the start page. Makes the output directory the current directory of the process.
///
/// Throws `OrxException` when the tree data file cannot be written; no page is written then. When
/// a page cannot be written, the failure goes to the exception log and the other pages are written.
void writeContentsPages(const ContentsContext& context);

}  // namespace quillmark
