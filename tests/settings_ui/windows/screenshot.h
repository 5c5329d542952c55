#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Saves the part of the screen that the window covers as a bitmap file, once it has been drawn.
void saveScreenshot(HWND window, const std::string& file);

}  // namespace quillmark
