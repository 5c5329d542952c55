#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// True for a picture that every browser shows: the extension is exactly ".jpg", ".jpeg" or
/// ".gif". ".JPG" does not count.
[[nodiscard]] bool isImageName(const OrxString& fileName);

/// The directory of the installed pictures, in the installation directory.
inline constexpr const char* installedPicturesName = "pix";

}  // namespace quillmark
