#include "component/posix/class_file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark {
namespace {

std::filesystem::path lockFileOf(const std::filesystem::path& classFile) {
    std::error_code error;
    std::filesystem::create_directories(classFile.parent_path(), error);
    return classFile.string() + ".lock";
}

bool lock(const Descriptor& file) noexcept {
    return uninterrupted([&file] { return flock(file.number(), LOCK_EX); }) == 0;
}

}  // namespace

ClassFileLock::ClassFileLock(const std::filesystem::path& classFile)
    : file_(descriptor_io::openFile(lockFileOf(classFile).c_str(), O_RDWR | O_CREAT)),
      isHeld_(noted(file_.isOpen() && lock(file_))) {}

}  // namespace quillmark
