#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "foundation/module_lifetime.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/directory_lock.h"
#include "platform/files/posix/file_rewriting.h"
#include "platform/files/posix/native_name.h"
#include "platform/files/posix/noted.h"
#include "platform/files/posix/open_files.h"
#include "platform/files/posix/whole_file.h"

namespace quillmark {

namespace {

using descriptor_io::openFile;

std::optional<struct stat> statusOf(const char* path) noexcept {
    std::optional<struct stat> status(std::in_place);
    if (stat(path, &*status) != 0) {
        if (!FileFailure::meansMissing(errno)) {
            FileFailure::note(errno);
        }
        status.reset();
    }
    return status;
}

std::optional<struct stat> statusOf(const std::string& path) noexcept {
    return statusOf(path.c_str());
}

std::optional<struct stat> statusOf(const Descriptor& file) noexcept {
    struct stat status {};
    if (file.isOpen() && fstat(file.number(), &status) == 0) {
        return status;
    }
    FileFailure::note(errno);
    return std::nullopt;
}

bool isDirectory(const std::optional<struct stat>& status) noexcept {
    return status && S_ISDIR(status->st_mode);
}

bool isFile(const std::optional<struct stat>& status) noexcept {
    return status && !S_ISDIR(status->st_mode);
}

/// Reading from a device or a pipe may never end, or wait forever.
bool hasAnEnd(const std::optional<struct stat>& status) noexcept {
    if (status && !S_ISREG(status->st_mode)) {
        FileFailure::noteNotRegular();
    }
    return status && S_ISREG(status->st_mode);
}

/// Opens a file that has an end. Its status is also checked before opening, since opening a device
/// or a pipe has side effects.
struct ReadableFile {
    explicit ReadableFile(const std::string& path) {
        if (const std::optional<struct stat> before = statusOf(path)) {
            file = hasAnEnd(before) ? openFile(path.c_str(), O_RDONLY | O_NONBLOCK) : Descriptor();
            status = statusOf(file);
        } else {
            FileFailure::note(errno);
        }
    }
    [[nodiscard]] bool isUsable() const noexcept { return hasAnEnd(status); }

    Descriptor file;
    std::optional<struct stat> status;
};

std::unique_ptr<OutputFile> outputFile(const OrxString& name, int flags) {
    Descriptor file = openFile(nativePath(name).c_str(), O_WRONLY | O_CREAT | flags);
    return noted(file.isOpen()) ? std::make_unique<OpenOutputFile>(std::move(file)) : nullptr;
}

bool makeDirectoryChain(const std::string& path) {
    constexpr mode_t fullAccess = 0777;
    if (mkdir(path.c_str(), fullAccess) == 0) {
        return true;
    }
    if (errno != ENOENT) {
        const int reason = errno;
        const bool isThere = isDirectory(statusOf(path));
        if (!isThere) {
            FileFailure::note(reason == EEXIST ? ENOTDIR : reason);
        }
        return isThere;
    }
    const std::size_t lastOfParent = path.find_last_not_of('/', path.find_last_of('/'));
    return lastOfParent != std::string::npos && lastOfParent + 1 < path.size() &&
           makeDirectoryChain(path.substr(0, lastOfParent + 1)) &&
           (noted(mkdir(path.c_str(), fullAccess) == 0) || isDirectory(statusOf(path)));
}

constexpr mode_t allPermissions = 07777;

/// The file that a link leads to. Any other name stays as it is, also a link to a missing file.
std::string linkTarget(const std::string& path) {
    std::error_code failure;
    const std::filesystem::path found = std::filesystem::canonical(path, failure);
    return failure ? path : found.string();
}

class NativeFileSystem final : public FileSystem {
public:
    bool fileExists(const OrxString& name) const override {
        return isFile(statusOf(NativeName(name).text()));
    }

    bool directoryExists(const OrxString& name) const override {
        return isDirectory(statusOf(NativeName(name).text()));
    }

    std::optional<FileStamp> stamp(const OrxString& name) const override {
        const std::optional<struct stat> status = statusOf(nativePath(name));
        if (!isFile(status)) {
            return std::nullopt;
        }
        constexpr std::int64_t nanosecondsInSecond = 1'000'000'000;
        return FileStamp{static_cast<std::uint64_t>(status->st_size),
                         status->st_mtim.tv_sec * nanosecondsInSecond + status->st_mtim.tv_nsec,
                         status->st_ino};
    }

    bool copyFile(const OrxString& source, const OrxString& target) override {
        const ReadableFile from(nativePath(source));
        if (!from.isUsable()) {
            return false;
        }
        WholeFile to = WholeFile::open(nativePath(target), &*from.status);
        if (!to.isOpen()) {
            return to.isSource();
        }
        return noted(descriptor_io::copyAll(from.file, to.descriptor())) && to.commit();
    }

    bool deleteFile(const OrxString& name) override {
        const std::string path = nativePath(name);
        return !isDirectory(statusOf(path)) && noted(unlink(path.c_str()) == 0);
    }

    bool makeDirectories(const OrxString& name) override {
        std::string path = nativePath(name);
        while (path.size() > 1 && path.back() == '/') {
            path.pop_back();
        }
        return !path.empty() && makeDirectoryChain(path);
    }

    bool setCurrentDirectory(const OrxString& name) override {
        return chdir(nativePath(name).c_str()) == 0;
    }

    OrxString currentDirectory() const override {
        std::error_code failure;
        const std::filesystem::path path = std::filesystem::current_path(failure);
        return failure ? OrxString() : driverPath(path.string());
    }

    std::unique_ptr<InputFile> openForReading(const OrxString& name) override {
        ReadableFile file(nativePath(name));
        return file.isUsable() ? std::make_unique<OpenInputFile>(std::move(file.file)) : nullptr;
    }

    std::unique_ptr<OutputFile> openForWriting(const OrxString& name) override {
        return outputFile(name, O_TRUNC);
    }

    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override {
        WholeFile file = WholeFile::open(nativePath(name));
        return file.isOpen() ? std::make_unique<WholeOutputFile>(std::move(file)) : nullptr;
    }

    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override {
        return outputFile(name, O_APPEND);
    }

    bool replaceFile(const OrxString& source, const OrxString& target) override {
        const std::string from = nativePath(source);
        const std::string to = linkTarget(nativePath(target));
        if (!isFile(statusOf(from))) {
            return false;
        }
        if (const std::optional<struct stat> there = statusOf(to)) {
            if (!hasAnEnd(there)) {
                return false;
            }
            // Keeps the permissions, as far as this user may set them.
            static_cast<void>(chmod(from.c_str(), there->st_mode & allPermissions));
        }
        return noted(rename(from.c_str(), to.c_str()) == 0);
    }

    bool rewriteFile(const OrxString& name, std::string_view content) override {
        const std::string path = nativePath(name);
        return !path.empty() && file_rewriting::rewrite(path, content);
    }

    std::unique_ptr<FileLock> lockForChange(const OrxString& name) override {
        const std::optional<std::string> path = file_rewriting::withoutLinks(nativePath(name));
        return path ? lockDirectoryOf(*path) : nullptr;
    }
};

}  // namespace

FileSystem& FileSystem::native() noexcept {
    static ModuleLifetime<NativeFileSystem> fileSystem;
    return *fileSystem;
}

}  // namespace quillmark
