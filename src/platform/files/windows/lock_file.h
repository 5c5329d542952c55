#pragma once

#include <memory>
#include <string>

#include "platform/files/file_system.h"

namespace quillmark {

/// Locks the empty file "NAME.lock" beside the file `name`, which stays. It cannot be removed: a
/// process that waits for it would then hold the lock of a file that others no longer find. Null if
/// it cannot be created.
[[nodiscard]] std::unique_ptr<FileLock> lockBeside(const std::wstring& name);

}  // namespace quillmark
