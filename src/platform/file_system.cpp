#include "platform/file_system.h"

#include <utility>

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<FileSystem*> installedFileSystem;

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

FileSystem& FileSystem::current() noexcept {
    FileSystem* const fileSystem = installedFileSystem.get();
    return fileSystem != nullptr ? *fileSystem : native();
}

FileSystem* FileSystem::install(FileSystem* fileSystem) noexcept {
    return installedFileSystem.exchange(fileSystem);
}

}  // namespace quillmark
