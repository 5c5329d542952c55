#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes the fixed applet contents: the navigator in a fixed size, for browsers that cannot report
/// their window size. It always names the packed tree data, even if it was not packed.
void writeFixedContents(const ContentsContext& context);

}  // namespace quillmark
