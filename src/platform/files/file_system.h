#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// The result of writing a file.
enum class WriteResult { done, openFailed, writeFailed };

/// Tells whether a file has changed without reading it.
struct FileStamp {
    std::uint64_t size = 0;
    /// The time of the last change, in the system's own units.
    std::int64_t changed = 0;
    /// Identifies the file, so that a file that replaced it has another stamp.
    std::uint64_t identity = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) noexcept = default;
};

/// A file that is open for reading, from start to end. The destructor closes it.
class InputFile {
public:
    virtual ~InputFile() = default;
    /// Fills `buffer` as far as bytes are available and returns their number. The result is 0 only
    /// at the end of the file, or after a failed read. Call `failed` if half a file is worse than
    /// none.
    virtual std::size_t read(std::span<char> buffer) = 0;
    /// True if a read has failed. An implementation that cannot fail need not override it.
    [[nodiscard]] virtual bool failed() const { return false; }
};

/// A file that is open for writing.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    /// Writes the pieces one after the other. False if a write fails, and then an unknown part of
    /// them has been written.
    [[nodiscard]] virtual bool write(std::span<const std::string_view> pieces) = 0;
    /// Closes the file. False if some of the written bytes were lost. Do not use the file
    /// afterwards. The destructor closes an open file, but does not report a failure.
    [[nodiscard]] virtual bool close() = 0;
};

/// Keeps others from changing a file for as long as it lives; see `FileSystem::lockForChange`.
class FileLock {
public:
    FileLock() = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    virtual ~FileLock() = default;
};

/// The file system as the driver needs it. This is the contract for all implementations: the native
/// ones, and those that tests install.
///
/// Names are in the driver's form: in the encoding in force (platform/text_encoding.h), with "\"
/// between components. "/" means the same as
/// "\". A relative name is relative to `currentDirectory`. An empty name, or one with a zero byte,
/// never exists and cannot be created. The results report failures, and no call throws for one.
/// `FileFailure` has the reason of a failure as far as the implementation knows it, also for a
/// look-up that fails for another reason than that there is no such file.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// True for a file or a link to a file, false for a directory.
    [[nodiscard]] virtual bool fileExists(const OrxString& name) const = 0;
    [[nodiscard]] virtual bool directoryExists(const OrxString& name) const = 0;
    /// The stamp of a file, for callers that cache its content. Nothing if there is no such file.
    [[nodiscard]] virtual std::optional<FileStamp> stamp(const OrxString& name) const = 0;

    /// Copies the content of a file. Creates `target` or overwrites it. Copying a file onto itself
    /// changes nothing and succeeds. A device or a pipe is not copied or overwritten. Memory use
    /// does not depend on the size of the file. After a failure the target is what it was before.
    [[nodiscard]] virtual bool copyFile(const OrxString& source, const OrxString& target) = 0;
    /// Deletes a file, not a directory. True if this call deleted it.
    virtual bool deleteFile(const OrxString& name) = 0;
    /// Creates a directory and its missing parents. True if the directory exists afterwards.
    virtual bool makeDirectories(const OrxString& name) = 0;

    /// False if there is no such directory.
    [[nodiscard]] virtual bool setCurrentDirectory(const OrxString& name) = 0;
    [[nodiscard]] virtual OrxString currentDirectory() const = 0;

    /// Opens a file for reading. Null on failure, and for a directory, a device or a pipe.
    [[nodiscard]] virtual std::unique_ptr<InputFile> openForReading(const OrxString& name) = 0;
    /// Creates or truncates a file and opens it for writing. Others may read and write it at the
    /// same time. Null on failure.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> openForWriting(const OrxString& name) = 0;
    /// Opens a file that is written whole or not at all: the name has the new content once `close`
    /// has succeeded. If a write or `close` fails, or the file is destroyed before `close`, then
    /// there is no such file, or the old one as it was. If the name is a link, the file that it
    /// leads to is written. Permissions stay. Null on failure, and for a device or a pipe.
    ///
    /// An implementation that does not override it truncates the old file and deletes what could
    /// not be written.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> openForReplacing(const OrxString& name);
    /// Opens a file for writing at its end. Creates it if it is missing. Null on failure.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> openForAppending(const OrxString& name) = 0;

    /// Replaces `target` by `source` in one atomic step. `source` no longer exists afterwards. If
    /// `target` is a link, the file that it leads to is replaced. The permissions of `target` are
    /// kept. On failure both files are unchanged.
    [[nodiscard]] virtual bool replaceFile(const OrxString& source, const OrxString& target) = 0;

    /// Replaces the content of a file in one atomic step, or creates the file. If `name` is a link,
    /// the file that it leads to is replaced, or created if it is missing. Owner, group and
    /// permissions stay. Until then the new content is in a temporary file beside the old one,
    /// which nobody may read who may not read the old one. On failure, also if the owner or the
    /// group cannot be kept, the file is unchanged and there is no other file.
    [[nodiscard]] virtual bool rewriteFile(const OrxString& name, std::string_view content);
    /// Waits until nobody else holds the lock of this file, in this process or another one, and
    /// takes it. It does not stop those who do not ask for it. Null if the file cannot be locked,
    /// for instance because its directory does not exist.
    [[nodiscard]] virtual std::unique_ptr<FileLock> lockForChange(const OrxString& name);

    /// Whether programs may be started while this file system is installed.
    [[nodiscard]] virtual bool mayStart(const OrxString& /*program*/) const { return true; }

    /// The installed file system, or the native one if none is installed.
    [[nodiscard]] static FileSystem& current() noexcept;
    /// The system's own file system.
    [[nodiscard]] static FileSystem& native() noexcept;
    /// Installs a file system for the whole process and returns the one installed before. Null
    /// stands for the native one. The file system is not owned.
    static FileSystem* install(FileSystem* fileSystem) noexcept;
};

}  // namespace quillmark
