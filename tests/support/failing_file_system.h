#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/file_system.h"

namespace quillmark {

/// Passes everything on to another file system and fails where the test says. Until it is told to
/// fail it is the other one's equal.
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
        setCurrentDirectory
    };
    static constexpr std::size_t operationKinds = 11;

    explicit FailingFileSystem(FileSystem& inner) : inner_(inner) {}

    /// The `number`-th operation of that kind from now on fails, once.
    void failAt(Operation operation, std::size_t number);
    /// Every operation of that kind fails from now on.
    void failAll(Operation operation);
    /// The disk takes that many bytes more; a write that needs more takes what it can and fails.
    void fillDiskAfter(std::uint64_t bytes) { space_ = bytes; }
    /// Nothing fails any more.
    void heal();
    /// How many operations of that kind were asked for, failed ones included.
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
    [[nodiscard]] Plan& plan(Operation operation) {
        return plans_.at(static_cast<std::size_t>(operation));
    }
    /// Counts an operation; true when it is to fail.
    [[nodiscard]] bool fails(Operation operation);
    /// Takes room for up to `bytes` off the disk and returns how many there is room for.
    [[nodiscard]] std::uint64_t take(std::uint64_t bytes);
    std::unique_ptr<OutputFile> watched(std::unique_ptr<OutputFile> file);

    FileSystem& inner_;
    std::array<Plan, operationKinds> plans_{};
    std::optional<std::uint64_t> space_;
};

}  // namespace quillmark
