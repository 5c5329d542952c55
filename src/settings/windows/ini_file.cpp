#include "settings/ini_file.h"

#include <algorithm>
#include <string>

#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/files/windows/wide_name.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

OrxString IniFile::read(const OrxString& fileName, const OrxString& section, const OrxString& key,
                        const OrxString& fallback, std::size_t bufferSize) {
    SetLastError(ERROR_SUCCESS);
    std::wstring buffer(std::max<std::size_t>(bufferSize, 1), L'\0');
    const DWORD length = GetPrivateProfileStringW(
        wideText(section).c_str(), wideText(key).c_str(), wideText(fallback).c_str(), buffer.data(),
        static_cast<DWORD>(buffer.size()), wideText(nativePath(fileName)).c_str());
    // A missing file, section or key is reported as a missing file.
    FileFailure::note(static_cast<int>(GetLastError()));
    buffer.resize(length);
    return narrowText(buffer);
}

}  // namespace quillmark
