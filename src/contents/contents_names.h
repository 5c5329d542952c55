#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

/// Paths of the files that are written when a document is closed. All are in the output
/// directory, and the pages link to each other by file name only.
namespace quillmark::contents_names {

[[nodiscard]] OrxString startPage(const ContentsContext& context);
[[nodiscard]] OrxString appletContents(const ContentsContext& context);
[[nodiscard]] OrxString fixedFrameSet(const ContentsContext& context);
[[nodiscard]] OrxString fixedContents(const ContentsContext& context);
[[nodiscard]] OrxString staticFrameSet(const ContentsContext& context);
[[nodiscard]] OrxString staticContents(const ContentsContext& context);
[[nodiscard]] OrxString treeData(const ContentsContext& context);

/// The first detail page and the static contents as the frame sets for old browsers name them:
/// without a directory, and with the extension ".htm" whatever the document's extension is.
[[nodiscard]] OrxString fixedDetailLink(const ContentsContext& context);
[[nodiscard]] OrxString fixedStaticContentsLink(const ContentsContext& context);

}  // namespace quillmark::contents_names
