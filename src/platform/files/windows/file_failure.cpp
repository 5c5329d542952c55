#include "platform/files/file_failure.h"

#include <algorithm>
#include <array>

#include "platform/windows/windows_api.h"

namespace quillmark {

bool FileFailure::meansMissing(int systemError) noexcept {
    // Any text may be looked up as the name of a file, also one that cannot be a name.
    constexpr std::array<DWORD, 12> missing = {
        ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND,       ERROR_INVALID_NAME,
        ERROR_BAD_PATHNAME,   ERROR_FILENAME_EXCED_RANGE, ERROR_INVALID_DRIVE,
        ERROR_NOT_READY,      ERROR_BAD_NETPATH,          ERROR_BAD_NET_NAME,
        ERROR_DIRECTORY,      ERROR_INVALID_PARAMETER,    ERROR_NO_MORE_FILES};
    return std::ranges::find(missing, static_cast<DWORD>(systemError)) != missing.end();
}

void FileFailure::setSystemError(int systemError) noexcept {
    SetLastError(static_cast<DWORD>(systemError));
}

}  // namespace quillmark
