#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes everything around the detail pages of a finished document, in this order: the support
/// files, the tree data (packed when there is an archiver), the applet contents, and the start
/// page with the frame sets that it links. The output directory becomes the process's current
/// directory on the way.
///
/// Throws `OrxException` when the tree data file cannot be written; then no page is. A page that
/// cannot be written is told to the exception log and the others are written all the same.
void writeContentsPages(const ContentsContext& context);

}  // namespace quillmark
