#include "platform/files/file_failure.h"

#include <cerrno>

namespace quillmark {

bool FileFailure::meansMissing(int systemError) noexcept {
    // Any text may be looked up as the name of a file, also one that is too long for a name.
    return systemError == ENOENT || systemError == ENOTDIR || systemError == ENAMETOOLONG;
}

void FileFailure::setSystemError(int systemError) noexcept {
    errno = systemError;
}

}  // namespace quillmark
