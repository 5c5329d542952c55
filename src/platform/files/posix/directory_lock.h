#pragma once

#include <memory>
#include <string>

#include "platform/files/file_system.h"

namespace quillmark {

/// Locks the directory of a file, for a change that replaces the file. The directory itself carries
/// the lock, so that no other file is left behind. Where a directory cannot be locked, as on
/// network file systems, an empty file beside the file does ("settings.ini.lock"), which stays.
/// Null if neither can be locked.
[[nodiscard]] std::unique_ptr<FileLock> lockDirectoryOf(const std::string& path);

}  // namespace quillmark
