#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// Name of a file or folder in the directory of the setting "InstallDir" or "UserFilesDir". When
/// the setting is empty the name begins with "\": a file that happens to lie in the current
/// directory is never taken.
[[nodiscard]] OrxString installedName(const OrxString& directory, const OrxString& name);

/// The icon archives as the contents pages refer to them: the copies in the image directory, or
/// the sources where those were not copied.
struct IconArchives {
    OrxString icons;
    /// Empty when the user has no archive of their own.
    OrxString userIcons;
};

/// Copies what the applet contents page needs: the applet's archive (and its launch file) into
/// the output directory, the icon archives into the image directory. What is missing is passed
/// over in silence.
IconArchives copyContentsSupportFiles(const ContentsContext& context);

/// Name of the icon archive, in the installation directory and in the image directory.
inline constexpr const char* iconArchiveName = "icons.zip";

}  // namespace quillmark
