#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "foundation/module_lifetime.h"
#include "platform/file_system.h"
#include "platform/windows/lock_file.h"
#include "platform/windows/native_file.h"
#include "platform/windows/wide_name.h"

namespace quillmark {

namespace {

constexpr DWORD shareWithEverybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

DWORD attributesOf(const std::wstring& name) noexcept {
    return name.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(name.c_str());
}

bool isDirectory(DWORD attributes) noexcept {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool isFile(DWORD attributes) noexcept {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

Handle openFile(const std::wstring& name, DWORD access, DWORD disposition) noexcept {
    return Handle(CreateFileW(name.c_str(), access, shareWithEverybody, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// The system's description of a file, which identifies it under any name. Nothing if there is no
/// file, and for a device or a pipe.
std::optional<BY_HANDLE_FILE_INFORMATION> informationOf(const std::wstring& name) noexcept {
    constexpr DWORD noAccess = 0;
    const Handle file = openFile(name, noAccess, OPEN_EXISTING);
    BY_HANDLE_FILE_INFORMATION information{};
    const bool known =
        file.isOpen() && GetFileInformationByHandle(file.get(), &information) != FALSE;
    return known ? std::optional(information) : std::nullopt;
}

bool isSameFile(const BY_HANDLE_FILE_INFORMATION& one, const std::wstring& other) noexcept {
    const auto second = informationOf(other);
    return second && one.dwVolumeSerialNumber == second->dwVolumeSerialNumber &&
           one.nFileIndexHigh == second->nFileIndexHigh &&
           one.nFileIndexLow == second->nFileIndexLow;
}

constexpr std::uint64_t joinHalves(DWORD high, DWORD low) noexcept {
    return (std::uint64_t{high} << 32U) | low;
}

/// A copy of a read-only file is read-only as well. The next copy must be able to replace it.
void makeWritable(const std::wstring& name) noexcept {
    const DWORD attributes = attributesOf(name);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesW(name.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    }
}

bool makeDirectoryChain(const std::wstring& name) noexcept {
    if (CreateDirectoryW(name.c_str(), nullptr) != FALSE) {
        return true;
    }
    if (GetLastError() != ERROR_PATH_NOT_FOUND) {
        return isDirectory(attributesOf(name));
    }
    const std::size_t separator = name.find_last_of(L'\\');
    const std::size_t lastOfParent =
        separator == std::wstring::npos ? separator : name.find_last_not_of(L'\\', separator);
    return lastOfParent != std::wstring::npos &&
           makeDirectoryChain(name.substr(0, lastOfParent + 1)) &&
           (CreateDirectoryW(name.c_str(), nullptr) != FALSE || isDirectory(attributesOf(name)));
}

class NativeFileSystem final : public FileSystem {
public:
    bool fileExists(const OrxString& name) const override {
        return isFile(attributesOf(wideName(name)));
    }

    bool directoryExists(const OrxString& name) const override {
        return isDirectory(attributesOf(wideName(name)));
    }

    std::optional<FileStamp> stamp(const OrxString& name) const override {
        const std::wstring wide = wideName(name);
        const auto information = wide.empty() ? std::nullopt : informationOf(wide);
        if (!information || isDirectory(information->dwFileAttributes)) {
            return std::nullopt;
        }
        const FILETIME& changed = information->ftLastWriteTime;
        return FileStamp{
            joinHalves(information->nFileSizeHigh, information->nFileSizeLow),
            static_cast<std::int64_t>(joinHalves(changed.dwHighDateTime, changed.dwLowDateTime)),
            joinHalves(information->nFileIndexHigh, information->nFileIndexLow)};
    }

    bool copyFile(const OrxString& source, const OrxString& target) override {
        const std::wstring from = wideName(source);
        const std::wstring to = wideName(target);
        const auto information = informationOf(from);
        if (!information || isDirectory(information->dwFileAttributes)) {
            return false;
        }
        const DWORD before = attributesOf(to);
        if (isFile(before) && isSameFile(*information, to)) {
            return true;
        }
        if (CopyFileW(from.c_str(), to.c_str(), FALSE) == FALSE) {
            if (before == INVALID_FILE_ATTRIBUTES) {
                DeleteFileW(to.c_str());
            }
            return false;
        }
        makeWritable(to);
        return true;
    }

    bool deleteFile(const OrxString& name) override {
        return DeleteFileW(wideName(name).c_str()) != FALSE;
    }

    bool makeDirectories(const OrxString& name) override {
        std::wstring wide = wideName(name);
        while (wide.size() > 1 && wide.back() == L'\\') {
            wide.pop_back();
        }
        return !wide.empty() && makeDirectoryChain(wide);
    }

    bool setCurrentDirectory(const OrxString& name) override {
        const std::wstring wide = wideName(name);
        return !wide.empty() && SetCurrentDirectoryW(wide.c_str()) != FALSE;
    }

    OrxString currentDirectory() const override {
        std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
        path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
        return narrowText(path);
    }

    std::unique_ptr<InputFile> openForReading(const OrxString& name) override {
        return makeInputFile(openFile(wideName(name), GENERIC_READ, OPEN_EXISTING));
    }

    std::unique_ptr<OutputFile> openForWriting(const OrxString& name) override {
        return makeOutputFile(openFile(wideName(name), GENERIC_WRITE, CREATE_ALWAYS));
    }

    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override {
        // With this access alone, every write goes to the current end of the file.
        return makeOutputFile(openFile(wideName(name), FILE_APPEND_DATA, OPEN_ALWAYS));
    }

    bool replaceFile(const OrxString& source, const OrxString& target) override {
        const std::wstring from = wideName(source);
        return isFile(attributesOf(from)) && MoveFileExW(from.c_str(), wideName(target).c_str(),
                                                         MOVEFILE_REPLACE_EXISTING) != FALSE;
    }

    std::unique_ptr<FileLock> lockForChange(const OrxString& name) override {
        const std::wstring wide = wideName(name);
        return wide.empty() ? nullptr : lockBeside(wide);
    }
};

}  // namespace

FileSystem& FileSystem::native() noexcept {
    static ModuleLifetime<NativeFileSystem> fileSystem;
    return *fileSystem;
}

}  // namespace quillmark
