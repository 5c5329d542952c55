#pragma once

#include <filesystem>

#include "platform/files/posix/descriptor.h"

namespace quillmark {

/// Locks the class file against other writers. Hold it from reading the file until the changed file
/// has replaced it. Another registration, in this process or another one, waits meanwhile. Readers
/// do not need the lock.
///
/// The lock is on a separate file, "classes.ini.lock", because every change replaces the class file
/// itself. The lock file is empty and is never removed. The system releases the lock when its
/// holder ends, even after a crash.
class ClassFileLock {
public:
    /// Waits for the lock. Creates the directory when it does not exist.
    explicit ClassFileLock(const std::filesystem::path& classFile);

    /// False when the directory is not writable or its file system does not support locks.
    [[nodiscard]] bool isHeld() const noexcept { return isHeld_; }

private:
    Descriptor file_;
    bool isHeld_;
};

}  // namespace quillmark
