#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// How an output file ended.
enum class WriteResult { done, openFailed, writeFailed };

/// What tells two states of a file apart without reading it.
struct FileStamp {
    std::uint64_t size = 0;
    /// The time of the last change, in units of the system's own.
    std::int64_t changed = 0;
    /// Which file it is, so that one put in its place differs.
    std::uint64_t identity = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) noexcept = default;
};

/// A file open for reading, from the front to the end.
class InputFile {
public:
    virtual ~InputFile() = default;
    /// Puts up to as many bytes as `buffer` holds into it and returns how many; 0 at the end only.
    /// A read that fails ends the file too: ask `failed` where half a file is worse than none.
    virtual std::size_t read(std::span<char> buffer) = 0;
    /// True when the file ended because a read failed. One that cannot fail need not say so.
    [[nodiscard]] virtual bool failed() const { return false; }
};

/// A file open for writing, from the front.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    /// Writes the pieces one behind the other, all of them or (false) up to a failure.
    [[nodiscard]] virtual bool write(std::span<const std::string_view> pieces) = 0;
    /// Hands the bytes to the system and closes. False when something of them was lost. After it
    /// the file must not be used. Destroying an open file closes it and loses the answer.
    [[nodiscard]] virtual bool close() = 0;
};

/// The file system as the driver needs it. What each call promises is written here, once, for
/// every implementation: the native ones, and those that tests put in their place.
///
/// Names are in the driver's form: 8-bit code page, "\" between components; "/" is taken as "\".
/// Relative names count from `currentDirectory`. Under an empty name, or one with a zero byte
/// inside, nothing is there and nothing can be made. No call throws; a failure is an answer.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// True for a file (or what a link to one leads to), false for a directory.
    [[nodiscard]] virtual bool fileExists(const OrxString& name) const = 0;
    [[nodiscard]] virtual bool directoryExists(const OrxString& name) const = 0;
    /// The file's stamp, for those who keep what they have read; nothing where no file is.
    [[nodiscard]] virtual std::optional<FileStamp> stamp(const OrxString& name) const = 0;

    /// Copies the bytes over `target`, which is made or replaced; a file copied onto itself is
    /// left untouched and counts as done. A source that is a device or a pipe is not copied. Memory
    /// use does not grow with the file. A failure leaves no target that was not there before.
    [[nodiscard]] virtual bool copyFile(const OrxString& source, const OrxString& target) = 0;
    /// True when a file of that name is gone afterwards because of this call.
    virtual bool deleteFile(const OrxString& name) = 0;
    /// Makes the directory and those above it that are missing. True when it is there afterwards.
    virtual bool makeDirectories(const OrxString& name) = 0;

    [[nodiscard]] virtual bool setCurrentDirectory(const OrxString& name) = 0;
    [[nodiscard]] virtual OrxString currentDirectory() const = 0;

    /// Opens for reading; null when that fails, and for a directory.
    [[nodiscard]] virtual std::unique_ptr<InputFile> openForReading(const OrxString& name) = 0;
    /// Makes or empties the file; others may read and write it meanwhile. Null when that fails.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> openForWriting(const OrxString& name) = 0;
    /// Opens at the end, making the file when missing. Null when that fails.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> openForAppending(const OrxString& name) = 0;

    /// Makes `target` hold what `source` holds, in one step that nobody sees half done; `source`
    /// is gone afterwards. A link stays a link, and who may read the file stays. On failure both
    /// are as they were.
    [[nodiscard]] virtual bool replaceFile(const OrxString& source, const OrxString& target) = 0;

    /// The one in force; the native one unless `install` put another in its place.
    [[nodiscard]] static FileSystem& current() noexcept;
    /// The system's own.
    [[nodiscard]] static FileSystem& native() noexcept;
    /// Puts `fileSystem` in force (it stays the caller's); null brings the native one back.
    /// Returns the one that was installed before, null for the native one.
    static FileSystem* install(FileSystem* fileSystem) noexcept;
};

}  // namespace quillmark
