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
/// A node is closed in front of the next line, so its children stand inside it. Levels are
/// corrected on the way: none is below 1, and none is more than one deeper than the one before.
/// The text is converted (see tree_text.h); hrefs and icon names are written as they stand, the
/// latter only with `showIcons`. Lines end as the platform ends them. See `IndentBudget` for
/// trees too deep to be indented.
///
/// Throws `OrxException` "Error opening file: " + path when the file cannot be made, "Error
/// writing to file: " + path when the disk takes no more.
void writeTreeDataFile(const OrxString& path, const ContentsEntryList& entries, bool showIcons);

}  // namespace quillmark
