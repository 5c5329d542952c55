#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/files/file_system.h"

namespace quillmark {

/// Passes all calls on to another file system, but fails where a test wants it to.
///
///     FailingFileSystem files(memory);
///     files.failAt(FailingFileSystem::Operation::write, 2);   // the second write from now on
class FailingFileSystem : public FileSystem {
public:
    enum class Operation {
        openForReading,
        openForWriting,
        openForAppending,
        read,
        write,
        close,
        makeDirectories,
        copyFile,
        deleteFile,
        replaceFile,
        setCurrentDirectory,
        lookUp
    };
    static constexpr std::size_t operationKinds = 12;

    explicit FailingFileSystem(FileSystem& inner) : inner_(inner) {}

    /// Makes one operation fail: the `number`-th of that kind from now on, counted from 1.
    void failAt(Operation operation, std::size_t number);
    /// Makes every operation of that kind fail from now on.
    void failAll(Operation operation);
    /// Limits the space on the disk. A write that needs more than is left writes what fits and
    /// fails.
    void fillDiskAfter(std::uint64_t bytes) { space_ = bytes; }
    /// Gives the failures a reason, a number of the system's; by default they have none.
    void giveReason(int systemError) { reason_ = systemError; }
    /// Makes nothing fail any more.
    void heal();
    /// The number of operations of that kind so far, including failed ones.
    [[nodiscard]] std::size_t count(Operation operation) const { return plan(operation).asked; }

    bool fileExists(const OrxString& name) const override;
    bool directoryExists(const OrxString& name) const override;
    std::optional<FileStamp> stamp(const OrxString& name) const override;
    bool copyFile(const OrxString& source, const OrxString& target) override;
    bool deleteFile(const OrxString& name) override;
    bool makeDirectories(const OrxString& name) override;
    bool setCurrentDirectory(const OrxString& name) override;
    OrxString currentDirectory() const override;
    std::unique_ptr<InputFile> openForReading(const OrxString& name) override;
    std::unique_ptr<OutputFile> openForWriting(const OrxString& name) override;
    /// Counts as `openForWriting`.
    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override;
    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override;
    bool replaceFile(const OrxString& source, const OrxString& target) override;

private:
    class Reader;
    class Writer;
    struct Plan {
        std::size_t asked = 0;
        std::size_t failsAt = 0;
        bool failsAlways = false;
    };

    [[nodiscard]] const Plan& plan(Operation operation) const {
        return plans_.at(static_cast<std::size_t>(operation));
    }
    /// Counts an operation. True if it must fail.
    [[nodiscard]] bool fails(Operation operation) const;
    [[nodiscard]] bool isLookedUp() const { return !fails(Operation::lookUp); }
    /// Uses up to `bytes` of the space on the disk. Returns how many are available.
    [[nodiscard]] std::uint64_t take(std::uint64_t bytes);
    std::unique_ptr<OutputFile> watched(std::unique_ptr<OutputFile> file);

    FileSystem& inner_;
    /// Look-ups count too, although they change nothing.
    mutable std::array<Plan, operationKinds> plans_{};
    std::optional<std::uint64_t> space_;
    int reason_ = 0;
};

}  // namespace quillmark
