#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes the page that a reader opens. Its script checks the browser and builds a frame set with
/// the contents and the first detail page. Other browsers show a text instead. With `supportOld`,
/// the text links to the two frame sets for old browsers, which are written too.
void writeStartPage(const ContentsContext& context);

}  // namespace quillmark
