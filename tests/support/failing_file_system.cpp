#include "support/failing_file_system.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/files/file_failure.h"

namespace quillmark {

class FailingFileSystem::Reader final : public InputFile {
public:
    Reader(FailingFileSystem& owner, std::unique_ptr<InputFile> file)
        : owner_(owner), file_(std::move(file)) {}

    std::size_t read(std::span<char> buffer) override {
        failed_ = owner_.fails(Operation::read) || failed_;
        return failed_ ? 0 : file_->read(buffer);
    }
    bool failed() const override { return failed_ || file_->failed(); }

private:
    FailingFileSystem& owner_;
    std::unique_ptr<InputFile> file_;
    bool failed_ = false;
};

class FailingFileSystem::Writer final : public OutputFile {
public:
    Writer(FailingFileSystem& owner, std::unique_ptr<OutputFile> file)
        : owner_(owner), file_(std::move(file)) {}

    bool write(std::span<const std::string_view> pieces) override {
        failed_ = failed_ || owner_.fails(Operation::write) || !writeWhatFits(pieces);
        return !failed_;
    }

    bool close() override {
        const bool failed = owner_.fails(Operation::close) || failed_;
        // Without a call of its own `close` the inner file is only closed, or given up if it would
        // replace another.
        const std::unique_ptr<OutputFile> file = std::move(file_);
        return !failed && file->close();
    }

private:
    [[nodiscard]] bool writeWhatFits(std::span<const std::string_view> pieces) {
        for (const std::string_view piece : pieces) {
            const std::uint64_t room = owner_.take(piece.size());
            const std::string_view taken = piece.substr(0, static_cast<std::size_t>(room));
            if (!file_->write({&taken, 1}) || taken.size() < piece.size()) {
                FileFailure::note(owner_.reason_);
                return false;
            }
        }
        return true;
    }

    FailingFileSystem& owner_;
    std::unique_ptr<OutputFile> file_;
    bool failed_ = false;
};

void FailingFileSystem::failAt(Operation operation, std::size_t number) {
    Plan& its = plans_.at(static_cast<std::size_t>(operation));
    its.failsAt = its.asked + number;
}

void FailingFileSystem::failAll(Operation operation) {
    plans_.at(static_cast<std::size_t>(operation)).failsAlways = true;
}

void FailingFileSystem::heal() {
    for (Plan& each : plans_) {
        each.failsAt = 0;
        each.failsAlways = false;
    }
    space_.reset();
}

bool FailingFileSystem::fails(Operation operation) const {
    Plan& its = plans_.at(static_cast<std::size_t>(operation));
    const bool failsNow = ++its.asked == its.failsAt || its.failsAlways;
    if (failsNow && reason_ != 0) {
        FileFailure::note(reason_);
    }
    return failsNow;
}

std::uint64_t FailingFileSystem::take(std::uint64_t bytes) {
    if (!space_) {
        return bytes;
    }
    const std::uint64_t room = std::min(bytes, *space_);
    *space_ -= room;
    return room;
}

std::unique_ptr<OutputFile> FailingFileSystem::watched(std::unique_ptr<OutputFile> file) {
    return file != nullptr ? std::make_unique<Writer>(*this, std::move(file)) : nullptr;
}

bool FailingFileSystem::fileExists(const OrxString& name) const {
    return isLookedUp() && inner_.fileExists(name);
}

bool FailingFileSystem::directoryExists(const OrxString& name) const {
    return isLookedUp() && inner_.directoryExists(name);
}

std::optional<FileStamp> FailingFileSystem::stamp(const OrxString& name) const {
    return isLookedUp() ? inner_.stamp(name) : std::nullopt;
}

bool FailingFileSystem::copyFile(const OrxString& source, const OrxString& target) {
    if (fails(Operation::copyFile)) {
        return false;
    }
    const std::optional<FileStamp> from = inner_.stamp(source);
    const std::uint64_t size = from ? from->size : 0;
    return take(size) == size && inner_.copyFile(source, target);
}

bool FailingFileSystem::deleteFile(const OrxString& name) {
    return !fails(Operation::deleteFile) && inner_.deleteFile(name);
}

bool FailingFileSystem::makeDirectories(const OrxString& name) {
    return !fails(Operation::makeDirectories) && inner_.makeDirectories(name);
}

bool FailingFileSystem::setCurrentDirectory(const OrxString& name) {
    return !fails(Operation::setCurrentDirectory) && inner_.setCurrentDirectory(name);
}

OrxString FailingFileSystem::currentDirectory() const {
    return inner_.currentDirectory();
}

std::unique_ptr<InputFile> FailingFileSystem::openForReading(const OrxString& name) {
    std::unique_ptr<InputFile> file =
        fails(Operation::openForReading) ? nullptr : inner_.openForReading(name);
    return file != nullptr ? std::make_unique<Reader>(*this, std::move(file)) : nullptr;
}

std::unique_ptr<OutputFile> FailingFileSystem::openForWriting(const OrxString& name) {
    return fails(Operation::openForWriting) ? nullptr : watched(inner_.openForWriting(name));
}

std::unique_ptr<OutputFile> FailingFileSystem::openForReplacing(const OrxString& name) {
    return fails(Operation::openForWriting) ? nullptr : watched(inner_.openForReplacing(name));
}

std::unique_ptr<OutputFile> FailingFileSystem::openForAppending(const OrxString& name) {
    return fails(Operation::openForAppending) ? nullptr : watched(inner_.openForAppending(name));
}

bool FailingFileSystem::replaceFile(const OrxString& source, const OrxString& target) {
    return !fails(Operation::replaceFile) && inner_.replaceFile(source, target);
}

}  // namespace quillmark
