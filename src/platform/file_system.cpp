#include "platform/file_system.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<FileSystem*> installed;

}  // namespace

FileSystem& FileSystem::current() noexcept {
    FileSystem* const fileSystem = installed.get();
    return fileSystem != nullptr ? *fileSystem : native();
}

FileSystem* FileSystem::install(FileSystem* fileSystem) noexcept {
    return installed.exchange(fileSystem);
}

}  // namespace quillmark
