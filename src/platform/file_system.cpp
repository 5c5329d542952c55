#include "platform/file_system.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<FileSystem*> installedFileSystem;

}  // namespace

FileSystem& FileSystem::current() noexcept {
    FileSystem* const fileSystem = installedFileSystem.get();
    return fileSystem != nullptr ? *fileSystem : native();
}

FileSystem* FileSystem::install(FileSystem* fileSystem) noexcept {
    return installedFileSystem.exchange(fileSystem);
}

}  // namespace quillmark
