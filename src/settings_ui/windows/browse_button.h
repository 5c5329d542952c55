#pragma once

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Lets the Return key press a button whenever the button has the focus.
///
/// A dialog sends Return to its own default button. The page is a child of the frame's dialog,
/// which does not know the page's buttons, so the key would have no effect. The button therefore
/// asks for the key itself, in every frame and in every host's dialog.
void pressOnReturn(HWND button) noexcept;

}  // namespace quillmark
