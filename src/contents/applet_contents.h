#pragma once

#include "contents/contents_context.h"
#include "contents/support_files.h"

namespace quillmark {

/// Writes the applet contents page: a script that writes the navigator applet's tag as the
/// browser needs it. `treeFile` is the tree data the applet is to read, packed or not.
void writeAppletContents(const ContentsContext& context, const IconArchives& archives,
                         const OrxString& treeFile);

}  // namespace quillmark
