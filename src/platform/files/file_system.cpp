#include "platform/files/file_system.h"

#include <array>
#include <atomic>
#include <string>
#include <utility>

#include "foundation/process_wide.h"
#include "platform/system_facts.h"

namespace quillmark {

namespace {

constinit ProcessWide<FileSystem*> installedFileSystem;

/// The name of a file in the same directory that no other process or thread uses.
OrxString temporaryNameFor(const OrxString& fileName) {
    static std::atomic<unsigned> counter{0};
    return fileName + ("." + std::to_string(system_facts::processId()) + "-" +
                       std::to_string(counter++) + ".tmp");
}

/// Deletes the file unless all of it could be written.
class DeletedAfterFailure final : public OutputFile {
public:
    DeletedAfterFailure(FileSystem& files, OrxString name, std::unique_ptr<OutputFile> file)
        : files_(files), name_(std::move(name)), file_(std::move(file)) {}
    ~DeletedAfterFailure() override { discard(); }
    DeletedAfterFailure(const DeletedAfterFailure&) = delete;
    DeletedAfterFailure& operator=(const DeletedAfterFailure&) = delete;

    bool write(std::span<const std::string_view> pieces) override {
        failed_ = !file_->write(pieces) || failed_;
        return !failed_;
    }
    bool close() override {
        if (!file_->close() || failed_) {
            discard();
            return false;
        }
        file_ = nullptr;
        return true;
    }

private:
    void discard() {
        if (std::exchange(file_, nullptr) != nullptr) {
            files_.deleteFile(name_);
        }
    }

    FileSystem& files_;
    OrxString name_;
    std::unique_ptr<OutputFile> file_;
    bool failed_ = false;
};

}  // namespace

std::unique_ptr<OutputFile> FileSystem::openForReplacing(const OrxString& name) {
    std::unique_ptr<OutputFile> file = openForWriting(name);
    return file != nullptr ? std::make_unique<DeletedAfterFailure>(*this, name, std::move(file))
                           : nullptr;
}

bool FileSystem::rewriteFile(const OrxString& name, std::string_view content) {
    const OrxString temporary = temporaryNameFor(name);
    const std::unique_ptr<OutputFile> file = openForWriting(temporary);
    if (file == nullptr) {
        return false;
    }
    const bool written = file->write(std::array{content});
    // `close` comes first, so that the file is also closed after a failed write.
    if (file->close() && written && replaceFile(temporary, name)) {
        return true;
    }
    deleteFile(temporary);
    return false;
}

std::unique_ptr<FileLock> FileSystem::lockForChange(const OrxString& /*name*/) {
    // Of a file system in memory, or one that a test made, there are no other users.
    return std::make_unique<FileLock>();
}

FileSystem& FileSystem::current() noexcept {
    FileSystem* const fileSystem = installedFileSystem.get();
    return fileSystem != nullptr ? *fileSystem : native();
}

FileSystem* FileSystem::install(FileSystem* fileSystem) noexcept {
    return installedFileSystem.exchange(fileSystem);
}

}  // namespace quillmark
