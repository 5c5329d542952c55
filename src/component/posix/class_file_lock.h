#pragma once

#include <filesystem>

#include "platform/posix/descriptor.h"

namespace quillmark {

/// The right to change the file of classes, from reading it to putting the new one in its place:
/// of two who register at once, in one process or two, the second waits for the first. Readers do
/// not need it.
///
/// The lock lies on a file beside it, "classes.ini.lock", since every change replaces the file
/// itself. That file is empty and stays; the lock goes with its holder, whatever happens to it.
class ClassFileLock {
public:
    /// Waits. Makes the directory when it is not there.
    explicit ClassFileLock(const std::filesystem::path& classFile);

    /// False where the directory cannot be written to or cannot lock.
    [[nodiscard]] bool isHeld() const noexcept { return isHeld_; }

private:
    Descriptor file_;
    bool isHeld_;
};

}  // namespace quillmark
