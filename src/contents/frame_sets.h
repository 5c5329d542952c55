#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// Write a frame set for old browsers and the contents page that it shows on the left: the fixed
/// applet, or the static listing. Both return the frame set's file name.
///
/// The right frame is the first detail page under the extension ".htm", whatever the document's
/// extension is.
OrxString writeFixedFrameSet(const ContentsContext& context);
OrxString writeStaticFrameSet(const ContentsContext& context);

}  // namespace quillmark
