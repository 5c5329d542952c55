#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

/// Names of the files that are written when a document is closed. All lie in the output
/// directory, and their pages link to each other by file name alone.
namespace quillmark::contents_names {

[[nodiscard]] OrxString startPage(const ContentsContext& context);
[[nodiscard]] OrxString appletContents(const ContentsContext& context);
[[nodiscard]] OrxString fixedFrameSet(const ContentsContext& context);
[[nodiscard]] OrxString fixedContents(const ContentsContext& context);
[[nodiscard]] OrxString staticFrameSet(const ContentsContext& context);
[[nodiscard]] OrxString staticContents(const ContentsContext& context);
[[nodiscard]] OrxString treeData(const ContentsContext& context);

/// The first detail page and the static contents as the fixed pages name them: bare, and with
/// the extension ".htm" whatever the document's is.
[[nodiscard]] OrxString fixedDetailLink(const ContentsContext& context);
[[nodiscard]] OrxString fixedStaticContentsLink(const ContentsContext& context);

}  // namespace quillmark::contents_names
