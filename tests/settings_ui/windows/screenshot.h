#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Saves what the screen shows where the window is, once it has been drawn, as a bitmap file.
void saveScreenshot(HWND window, const std::string& file);

}  // namespace quillmark
