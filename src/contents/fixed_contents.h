#pragma once

#include "contents/contents_context.h"

namespace quillmark {

/// Writes the fixed applet contents: the navigator in a fixed size, for browsers that cannot be
/// asked for theirs. It names the packed tree data whether or not it was packed.
void writeFixedContents(const ContentsContext& context);

}  // namespace quillmark
