#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Identifiers of the resources that the settings page needs from the module it is linked into.
namespace resource {

inline constexpr WORD pageTitle = 5102;
inline constexpr WORD pageDescription = 5104;
inline constexpr WORD pageDialog = 5106;

}  // namespace resource

/// A string resource of the module; empty when there is none of that number.
[[nodiscard]] std::wstring resourceString(WORD id);

/// Pixels of a dialog template's client area in the font that the template names; zero when the
/// module has no such template.
[[nodiscard]] SIZE dialogPixels(WORD id);

}  // namespace quillmark
