#pragma once

#include "platform/files/file_system.h"

namespace quillmark {

/// Installs a file system during its lifetime.
class InstalledFileSystem {
public:
    explicit InstalledFileSystem(FileSystem& files) : before_(FileSystem::install(&files)) {}
    ~InstalledFileSystem() { FileSystem::install(before_); }
    InstalledFileSystem(const InstalledFileSystem&) = delete;
    InstalledFileSystem& operator=(const InstalledFileSystem&) = delete;

private:
    FileSystem* before_;
};

}  // namespace quillmark
