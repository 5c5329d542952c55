#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "foundation/module_lifetime.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/files/windows/lock_file.h"
#include "platform/files/windows/native_file.h"
#include "platform/files/windows/whole_file.h"
#include "platform/files/windows/wide_name.h"

namespace quillmark {

namespace {

constexpr DWORD shareWithEverybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Passes the result of a system call on, and notes the reason of a failure.
bool noted(bool done) noexcept {
    if (!done) {
        FileFailure::note(static_cast<int>(GetLastError()));
    }
    return done;
}

DWORD attributesOf(const std::wstring& name) noexcept {
    if (name.empty()) {
        return INVALID_FILE_ATTRIBUTES;
    }
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES &&
        !FileFailure::meansMissing(static_cast<int>(GetLastError()))) {
        FileFailure::note(static_cast<int>(GetLastError()));
    }
    return attributes;
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
        noted(file.isOpen() && GetFileInformationByHandle(file.get(), &information) != FALSE);
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

bool makeDirectoryChain(const std::wstring& name) noexcept {
    if (CreateDirectoryW(name.c_str(), nullptr) != FALSE) {
        return true;
    }
    if (const DWORD reason = GetLastError(); reason != ERROR_PATH_NOT_FOUND) {
        const bool isThere = isDirectory(attributesOf(name));
        if (!isThere) {
            FileFailure::note(static_cast<int>(reason));
        }
        return isThere;
    }
    const std::size_t separator = name.find_last_of(L'\\');
    const std::size_t lastOfParent =
        separator == std::wstring::npos ? separator : name.find_last_not_of(L'\\', separator);
    return lastOfParent != std::wstring::npos &&
           makeDirectoryChain(name.substr(0, lastOfParent + 1)) &&
           (CreateDirectoryW(name.c_str(), nullptr) != FALSE || isDirectory(attributesOf(name)));
}

std::unique_ptr<OutputFile> output(Handle file) {
    return noted(file.isOpen()) ? makeOutputFile(std::move(file)) : nullptr;
}

/// Moves a file to the place of another one. The system refuses that while anybody has the other
/// one open, if only to read it for a moment.
bool moveOver(const std::wstring& from, const std::wstring& to) noexcept {
    constexpr int tries = 200;
    constexpr DWORD pause = 10;
    for (int i = 0; i < tries; ++i) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE) {
            return true;
        }
        const DWORD failure = GetLastError();
        const DWORD attributes = attributesOf(to);
        const bool mayEnd = failure == ERROR_SHARING_VIOLATION || failure == ERROR_ACCESS_DENIED;
        if (!mayEnd || !isFile(attributes) || (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            SetLastError(failure);
            return false;
        }
        Sleep(pause);
    }
    return false;
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
        if (isFile(attributesOf(to)) && isSameFile(*information, to)) {
            return true;
        }
        return copyWholeFile(from, to);
    }

    bool deleteFile(const OrxString& name) override {
        return noted(DeleteFileW(wideName(name).c_str()) != FALSE);
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
        Handle file = openFile(wideName(name), GENERIC_READ, OPEN_EXISTING);
        // Reading from a device or a pipe may wait forever.
        if (noted(file.isOpen()) && GetFileType(file.get()) != FILE_TYPE_DISK) {
            FileFailure::noteNotRegular();
            return nullptr;
        }
        return makeInputFile(std::move(file));
    }

    std::unique_ptr<OutputFile> openForWriting(const OrxString& name) override {
        return output(openFile(wideName(name), GENERIC_WRITE, CREATE_ALWAYS));
    }

    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override {
        return openWholeFile(wideName(name));
    }

    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override {
        // With this access alone, every write goes to the current end of the file.
        return output(openFile(wideName(name), FILE_APPEND_DATA, OPEN_ALWAYS));
    }

    bool replaceFile(const OrxString& source, const OrxString& target) override {
        const std::wstring from = wideName(source);
        return isFile(attributesOf(from)) && noted(moveOver(from, wideName(target)));
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
