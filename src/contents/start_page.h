#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes the page that a reader opens: a script that checks the browser and builds the frame
/// set of contents and first detail page, and a text for browsers that stay outside. With
/// `supportOld` the two frame sets for old browsers are written too and linked from that text.
void writeStartPage(const ContentsContext& context);

}  // namespace quillmark
