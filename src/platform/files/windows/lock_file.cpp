#include "platform/files/windows/lock_file.h"

#include <utility>

#include "platform/files/windows/handle.h"

namespace quillmark {

namespace {

/// The system releases the lock with the handle, also when the process is ended.
class HandleLock final : public FileLock {
public:
    explicit HandleLock(Handle locked) noexcept : locked_(std::move(locked)) {}

private:
    Handle locked_;
};

}  // namespace

std::unique_ptr<FileLock> lockBeside(const std::wstring& name) {
    constexpr DWORD shareWithEverybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    Handle file(CreateFileW((name + L".lock").c_str(), GENERIC_READ | GENERIC_WRITE,
                            shareWithEverybody, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                            nullptr));
    OVERLAPPED start{};
    const bool held =
        file.isOpen() && LockFileEx(file.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &start) != FALSE;
    return held ? std::make_unique<HandleLock>(std::move(file)) : nullptr;
}

}  // namespace quillmark
