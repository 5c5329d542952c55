#pragma once

#include "contents/contents_context.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// The path of a file or folder in the directory of the setting "InstallDir" or "UserFilesDir". If
/// the setting is empty, the path begins with "\", so that a file in the current directory is never
/// used.
[[nodiscard]] OrxString installedName(const OrxString& directory, const OrxString& name);

/// The icon archives that the contents pages refer to: the copies in the image directory, or the
/// sources of those that were not copied.
struct IconArchives {
    OrxString icons;
    /// Empty when the user has no archive of their own.
    OrxString userIcons;
};

/// Copies what the applet contents page needs: the applet's archive and its launch file into the
/// output directory, the icon archives into the image directory. Missing files are skipped without
/// a message.
IconArchives copyContentsSupportFiles(const ContentsContext& context);

/// Name of the icon archive, in the installation directory and in the image directory.
inline constexpr const char* iconArchiveName = "icons.zip";

}  // namespace quillmark
