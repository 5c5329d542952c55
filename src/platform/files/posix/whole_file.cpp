#include "platform/files/posix/whole_file.h"

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/files/file_failure.h"
#include "platform/files/posix/descriptor_io.h"

namespace quillmark {

namespace {

using descriptor_io::openFile;

/// A name in the directory of `target` that no other process or thread uses. It is short, so that
/// it fits wherever the name of a page fits.
std::string temporaryNameBeside(const std::string& target) {
    static std::atomic<unsigned> counter{0};
    return target.substr(0, target.rfind('/') + 1) + ".dochtml" + std::to_string(getpid()) + '-' +
           std::to_string(counter++) + ".tmp";
}

bool isSameFile(const struct stat& one, const struct stat& other) noexcept {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Another file in its place would not have all that this one has.
bool cannotBeReplaced(const std::string& path, const struct stat& status) noexcept {
    return status.st_nlink > 1 ||
           lgetxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) >= 0;
}

/// The directory takes no new file, but the old one may still be writable.
bool onlyOverwritingIsLeft(int error) noexcept {
    return error == EACCES || error == EPERM || error == EROFS || error == ENAMETOOLONG;
}

/// Above that size a second file costs little in comparison.
constexpr off_t largestInPlace = off_t{256} * 1024;

/// The bytes of an open file from its start, where it is left. Nothing if it cannot be read.
std::optional<std::string> bytesOf(const Descriptor& file, off_t size) {
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        const long taken = descriptor_io::readSome(file, std::span(bytes).subspan(done));
        if (taken <= 0) {
            return std::nullopt;
        }
        done += static_cast<std::size_t>(taken);
    }
    return size == 0 || lseek(file.number(), 0, SEEK_SET) == 0 ? std::optional(std::move(bytes))
                                                               : std::nullopt;
}

/// Gives the new file the permissions of the old one. False if it belongs to somebody else.
bool becomesLike(const struct stat& old, const Descriptor& file) noexcept {
    constexpr mode_t allPermissions = 07777;
    struct stat status {};
    if (fstat(file.number(), &status) != 0 || status.st_uid != old.st_uid ||
        status.st_gid != old.st_gid) {
        return false;
    }
    const mode_t permissions = old.st_mode & allPermissions;
    return (status.st_mode & allPermissions) == permissions ||
           fchmod(file.number(), permissions) == 0;
}

}  // namespace

WholeFile::WholeFile(Descriptor file, std::string written) noexcept
    : file_(std::move(file)), written_(std::move(written)) {}

WholeFile::WholeFile(WholeFile&& other) noexcept
    : file_(std::move(other.file_)),
      written_(std::exchange(other.written_, {})),
      target_(std::exchange(other.target_, {})),
      old_(std::exchange(other.old_, std::nullopt)),
      isSource_(other.isSource_) {}

WholeFile& WholeFile::operator=(WholeFile&& other) noexcept {
    std::swap(file_, other.file_);
    std::swap(written_, other.written_);
    std::swap(target_, other.target_);
    std::swap(old_, other.old_);
    std::swap(isSource_, other.isSource_);
    return *this;
}

WholeFile::~WholeFile() {
    discard();
}

WholeFile WholeFile::open(const std::string& path, const struct stat* source) {
    // Copied first: nothing may fail between the creation of the file and its owner's.
    std::string written = path;
    Descriptor fresh = openFile(path.c_str(), O_WRONLY | O_CREAT | O_EXCL);
    if (fresh.isOpen()) {
        return {std::move(fresh), std::move(written)};
    }
    if (errno == EEXIST) {
        return overExisting(path, source);
    }
    FileFailure::note(errno);
    return {};
}

WholeFile WholeFile::overExisting(const std::string& path, const struct stat* source) {
    struct stat old {};
    if (stat(path.c_str(), &old) != 0) {
        if (errno == ENOENT) {
            return throughLink(path);
        }
        FileFailure::note(errno);
        return {};
    }
    if (source != nullptr && isSameFile(old, *source)) {
        WholeFile same;
        same.isSource_ = true;
        return same;
    }
    // Checked before opening, since opening a device or a pipe has side effects.
    if (!S_ISREG(old.st_mode)) {
        FileFailure::noteNotRegular();
        return {};
    }
    std::error_code failure;
    if (old.st_size <= largestInPlace) {
        return inPlace(path, source);
    }
    const std::string target = std::filesystem::canonical(path, failure).string();
    return failure || cannotBeReplaced(target, old) ? inPlace(path, source) : beside(target, old);
}

/// Creates the file that a link leads to.
WholeFile WholeFile::throughLink(const std::string& path) {
    Descriptor created = openFile(path.c_str(), O_WRONLY | O_CREAT);
    if (!created.isOpen()) {
        FileFailure::note(errno);
        return {};
    }
    std::error_code failure;
    return {std::move(created), std::filesystem::canonical(path, failure).string()};
}

WholeFile WholeFile::beside(const std::string& target, const struct stat& old) {
    // A file that may not be written is not replaced either.
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        FileFailure::note(errno);
        return {};
    }
    std::string name = temporaryNameBeside(target);
    Descriptor temporary = openFile(name.c_str(), O_WRONLY | O_CREAT | O_EXCL);
    if (!temporary.isOpen()) {
        if (onlyOverwritingIsLeft(errno)) {
            return inPlace(target, nullptr);
        }
        FileFailure::note(errno);
        return {};
    }
    WholeFile result(std::move(temporary), std::move(name));
    if (!becomesLike(old, result.file_)) {
        return inPlace(target, nullptr);
    }
    result.target_ = target;
    return result;
}

WholeFile WholeFile::inPlace(const std::string& target, const struct stat* source) {
    std::string written = target;
    Descriptor file = openFile(target.c_str(), O_RDWR | O_NONBLOCK);
    struct stat status {};
    if (!file.isOpen() || fstat(file.number(), &status) != 0) {
        FileFailure::note(errno);
        return {};
    }
    // Compared once more, now as opened, because the source must not be overwritten.
    if (!S_ISREG(status.st_mode) || (source != nullptr && isSameFile(status, *source))) {
        FileFailure::noteNotRegular();
        return {};
    }
    std::optional<std::string> old = bytesOf(file, status.st_size);
    if (!old) {
        FileFailure::note(errno);
        return {};
    }
    WholeFile result(std::move(file), std::move(written));
    result.old_ = std::move(old);
    return result;
}

bool WholeFile::cutOldRest() const noexcept {
    if (!old_ || old_->empty()) {
        return true;
    }
    const off_t end = lseek(file_.number(), 0, SEEK_CUR);
    return end >= 0 &&
           (end >= static_cast<off_t>(old_->size()) || ftruncate(file_.number(), end) == 0);
}

bool WholeFile::commit() noexcept {
    const bool complete = cutOldRest();
    if (!complete) {
        FileFailure::note(errno);
        discard();
        return false;
    }
    const bool done =
        file_.close() && (target_.empty() || std::rename(written_.c_str(), target_.c_str()) == 0);
    if (done) {
        written_.clear();
    } else {
        FileFailure::note(errno);
        discard();
    }
    return done;
}

bool WholeFile::restoreOld() noexcept {
    if (!file_.isOpen()) {
        file_ = openFile(written_.c_str(), O_WRONLY | O_NONBLOCK);
    }
    const std::string_view bytes = *old_;
    const bool done = file_.isOpen() && lseek(file_.number(), 0, SEEK_SET) == 0 &&
                      descriptor_io::writeAll(file_, {&bytes, 1}) &&
                      ftruncate(file_.number(), static_cast<off_t>(bytes.size())) == 0;
    return file_.close() && done;
}

void WholeFile::discard() noexcept {
    if (!written_.empty() && !(old_ && restoreOld())) {
        unlink(written_.c_str());
    }
    static_cast<void>(file_.close());
    written_.clear();
}

}  // namespace quillmark
