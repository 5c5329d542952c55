#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Identifiers of the resources of the settings page. The module that the page is linked into
/// contains them.
namespace resource {

inline constexpr WORD pageTitle = 5102;
inline constexpr WORD pageDescription = 5104;
inline constexpr WORD pageDialog = 5106;

}  // namespace resource

/// A string resource of the module; empty when there is none with that identifier.
[[nodiscard]] std::wstring resourceString(WORD id);

/// The size in pixels of a dialog template's client area, in the font of the template. Zero when
/// the module has no such template.
[[nodiscard]] SIZE dialogPixels(WORD id);

}  // namespace quillmark
