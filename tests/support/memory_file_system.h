#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace quillmark {

/// A file system that lives and dies with the test. The root "\" and every drive are there from
/// the start; the current directory is the root. Names are told apart by case.
class MemoryFileSystem : public FileSystem {
public:
    MemoryFileSystem();

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

    /// Puts a file there, with the directories above it.
    void put(const OrxString& name, std::string bytes);
    /// The bytes of a file, or nothing when it is not there.
    [[nodiscard]] std::optional<std::string> content(const OrxString& name) const;
    /// The absolute names of all files, in the order of their bytes.
    [[nodiscard]] std::vector<std::string> fileNames() const;
    /// How many files are open now.
    [[nodiscard]] int openFiles() const;

private:
    struct File;
    class Reader;
    class Writer;
    using FilePtr = std::shared_ptr<File>;

    [[nodiscard]] std::string resolve(const OrxString& name) const;
    [[nodiscard]] FilePtr find(const std::string& path) const;
    [[nodiscard]] bool isDirectory(const std::string& path) const;
    [[nodiscard]] FilePtr findOrMake(const std::string& path);
    void addDirectory(const std::string& path);
    std::unique_ptr<OutputFile> openWriter(const OrxString& name, bool keepBytes);

    mutable std::mutex mutex_;
    /// By absolute path; a null file is a directory.
    std::map<std::string, FilePtr> entries_;
    std::string currentDirectory_ = "\\";
    std::uint64_t lastIdentity_ = 0;
    int openFiles_ = 0;
};

}  // namespace quillmark
