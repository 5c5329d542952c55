#pragma once

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// Writes the contents as the navigator applet reads them: a tree of nodes in parentheses.
///
///     (TREE
///        (NODE "Introduction" "rep_dtl.htm#toc1" "Class.gif"
///           (NODE "Purpose" "rep_dtl.htm#toc2" ))
///        (NODE "Index" "rep_dtl2.htm#toc3" ))
///
/// A node is closed before the next node that is not inside it. Levels are corrected: none is
/// below 1, and none is more than one deeper than the level before it. The text is converted (see
/// tree_text.h). Links and icon names are written unchanged, icon names only with `showIcons`.
/// Lines end as usual on the platform. See `IndentBudget` for very deep trees.
///
/// Throws `OrxException`: "Error opening file: " + path when the file cannot be created, "Error
/// writing to file: " + path when it cannot be written. Then `FileFailure` has the reason, and
/// there is no such file, or the old one as it was.
void writeTreeDataFile(const OrxString& path, const ContentsEntryList& entries, bool showIcons);

}  // namespace quillmark
