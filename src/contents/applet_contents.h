#pragma once

#include "contents/contents_context.h"
#include "contents/support_files.h"

namespace quillmark {

/// Writes the applet contents page. Its script writes the tag of the navigator applet, as the
/// browser needs it. `treeFile` is the tree data file that the applet reads, packed or not.
void writeAppletContents(const ContentsContext& context, const IconArchives& archives,
                         const OrxString& treeFile);

}  // namespace quillmark
