#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// Write a frame set for old browsers, and the contents page in its left frame: the fixed applet or
/// the static listing. Both return the path of the frame set.
///
/// The right frame shows the first detail page. Its link always has the extension ".htm", whatever
/// the document's extension is.
OrxString writeFixedFrameSet(const ContentsContext& context);
OrxString writeStaticFrameSet(const ContentsContext& context);

}  // namespace quillmark
