#include "settings/ini_file.h"

#include <algorithm>
#include <string>

#include "platform/drive_table.h"
#include "platform/file_failure.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

OrxString IniFile::read(const OrxString& fileName, const OrxString& section, const OrxString& key,
                        const OrxString& fallback, std::size_t bufferSize) {
    SetLastError(ERROR_SUCCESS);
    std::string buffer(std::max<std::size_t>(bufferSize, 1), '\0');
    const DWORD length =
        GetPrivateProfileStringA(section.data(), key.data(), fallback.data(), buffer.data(),
                                 static_cast<DWORD>(buffer.size()), nativePath(fileName).c_str());
    // A missing file, section or key is reported as a missing file.
    FileFailure::note(static_cast<int>(GetLastError()));
    buffer.resize(length);
    return buffer;
}

}  // namespace quillmark
