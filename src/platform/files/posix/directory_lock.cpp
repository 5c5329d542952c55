#include "platform/files/posix/directory_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <filesystem>
#include <utility>

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark {

namespace {

/// The system releases the lock with the descriptor, also when the process is killed.
class DescriptorLock final : public FileLock {
public:
    explicit DescriptorLock(Descriptor locked) noexcept : locked_(std::move(locked)) {}

private:
    Descriptor locked_;
};

std::unique_ptr<FileLock> lock(Descriptor file) {
    const bool held =
        file.isOpen() && uninterrupted([&file] { return flock(file.number(), LOCK_EX); }) == 0;
    return held ? std::make_unique<DescriptorLock>(std::move(file)) : nullptr;
}

}  // namespace

std::unique_ptr<FileLock> lockDirectoryOf(const std::string& path) {
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    const std::string directory = parent.empty() ? "." : parent.string();
    if (auto held = lock(descriptor_io::openFile(directory.c_str(), O_RDONLY | O_DIRECTORY))) {
        return held;
    }
    const std::string beside = path + ".lock";
    auto held = lock(descriptor_io::openFile(beside.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW));
    static_cast<void>(noted(held != nullptr));
    return held;
}

}  // namespace quillmark
