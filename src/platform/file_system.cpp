#include "platform/file_system.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<FileSystem*> installed{nullptr};

}  // namespace

FileSystem& FileSystem::current() noexcept {
    FileSystem* const fileSystem = installed.load(std::memory_order_acquire);
    return fileSystem != nullptr ? *fileSystem : native();
}

FileSystem* FileSystem::install(FileSystem* fileSystem) noexcept {
    return installed.exchange(fileSystem, std::memory_order_acq_rel);
}

}  // namespace quillmark
