#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/file_system.h"

namespace quillmark {

/// A file system in memory. The root "\" and all drives exist from the start. The current directory
/// is the root. Case matters in names.
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
    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override;
    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override;
    bool replaceFile(const OrxString& source, const OrxString& target) override;

    /// Creates a file with its parent directories.
    void put(const OrxString& name, std::string bytes);
    /// The content of a file, or nothing if there is none.
    [[nodiscard]] std::optional<std::string> content(const OrxString& name) const;
    /// The absolute names of all files, in the order of their bytes.
    [[nodiscard]] std::vector<std::string> fileNames() const;
    /// The number of files that are open now.
    [[nodiscard]] int openFiles() const;

private:
    struct File;
    class Reader;
    class Writer;
    class Replacement;
    using FilePtr = std::shared_ptr<File>;

    [[nodiscard]] std::string resolve(const OrxString& name) const;
    [[nodiscard]] FilePtr find(const std::string& path) const;
    [[nodiscard]] bool isDirectory(const std::string& path) const;
    [[nodiscard]] FilePtr findOrMake(const std::string& path);
    void addDirectory(const std::string& path);
    std::unique_ptr<OutputFile> openWriter(const OrxString& name, bool keepBytes);

    mutable std::mutex mutex_;
    /// Files by absolute path. A null pointer is a directory.
    std::map<std::string, FilePtr> entries_;
    std::string currentDirectory_ = "\\";
    std::uint64_t lastIdentity_ = 0;
    int openFiles_ = 0;
};

}  // namespace quillmark
