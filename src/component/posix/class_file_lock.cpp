#include "component/posix/class_file_lock.h"

#include <sys/file.h>

#include <cerrno>

namespace quillmark {
namespace {

std::filesystem::path lockFileOf(const std::filesystem::path& classFile) {
    std::error_code error;
    std::filesystem::create_directories(classFile.parent_path(), error);
    return classFile.string() + ".lock";
}

bool lock(const Descriptor& file) noexcept {
    int result = -1;
    do {
        result = flock(file.number(), LOCK_EX);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

}  // namespace

ClassFileLock::ClassFileLock(const std::filesystem::path& classFile)
    : file_(lockFileOf(classFile), O_RDWR | O_CREAT), isHeld_(lock(file_)) {}

}  // namespace quillmark
