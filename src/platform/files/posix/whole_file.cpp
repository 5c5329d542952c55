#include "platform/files/posix/whole_file.h"

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/files/file_failure.h"
#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"

namespace quillmark {

namespace {

using descriptor_io::openFileIn;
using descriptor_io::removeIn;
using descriptor_io::renameIn;
using descriptor_io::statusIn;

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

WholeFile::WholeFile(Descriptor directory) noexcept : directory_(std::move(directory)) {}

WholeFile::WholeFile(WholeFile&& other) noexcept
    : directory_(std::move(other.directory_)),
      file_(std::move(other.file_)),
      written_(std::exchange(other.written_, {})),
      target_(std::exchange(other.target_, {})),
      old_(std::exchange(other.old_, std::nullopt)),
      isSource_(other.isSource_) {}

WholeFile& WholeFile::operator=(WholeFile&& other) noexcept {
    std::swap(directory_, other.directory_);
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
    return openIn({}, path, source);
}

WholeFile WholeFile::openIn(Descriptor directory, const std::string& name,
                            const struct stat* source) {
    WholeFile file(std::move(directory));
    file.start(name, source);
    return file;
}

void WholeFile::start(const std::string& name, const struct stat* source) {
    // Copied first: nothing may fail between the creation of the file and its owner's.
    std::string written = name;
    file_ = openFileIn(directory_, name.c_str(), O_WRONLY | O_CREAT | O_EXCL);
    if (file_.isOpen()) {
        written_ = std::move(written);
    } else if (errno == EEXIST) {
        startOverExisting(name, source);
    } else {
        FileFailure::note(errno);
    }
}

void WholeFile::startOverExisting(const std::string& name, const struct stat* source) {
    const std::optional<struct stat> old = statusIn(directory_, name.c_str());
    if (!old) {
        if (errno == ENOENT && !directory_.isOpen()) {
            startThroughLink(name);
        } else {
            FileFailure::note(errno);
        }
        return;
    }
    if (source != nullptr && isSameFile(*old, *source)) {
        isSource_ = true;
        return;
    }
    // Checked before opening, since opening a device or a pipe has side effects.
    if (!S_ISREG(old->st_mode)) {
        FileFailure::noteNotRegular();
        return;
    }
    if (old->st_size > largestInPlace || !startInPlace(name, source)) {
        startReplacing(name, *old);
    }
}

/// Creates the file that a link leads to.
void WholeFile::startThroughLink(const std::string& name) {
    Descriptor created = openFileIn(directory_, name.c_str(), O_WRONLY | O_CREAT);
    if (!noted(created.isOpen())) {
        return;
    }
    written_ = withoutLinks(name).value_or(std::string());
    file_ = std::move(created);
}

void WholeFile::startReplacing(const std::string& name, const struct stat& old) {
    const std::optional<std::string> target = withoutLinks(name);
    const bool replaced = target && !cannotBeReplaced(*target, old) && startBeside(*target, old);
    if (!replaced && !startInPlace(target.value_or(name), nullptr)) {
        FileFailure::note(EACCES);
    }
}

/// False if only overwriting is left.
bool WholeFile::startBeside(const std::string& target, const struct stat& old) {
    // A file that may not be written is not replaced either.
    const int from = directory_.isOpen() ? directory_.number() : AT_FDCWD;
    if (!noted(faccessat(from, target.c_str(), W_OK, AT_EACCESS) == 0)) {
        return true;
    }
    std::string taken = target;
    std::string name = temporaryNameBeside(target);
    file_ = openFileIn(directory_, name.c_str(), O_WRONLY | O_CREAT | O_EXCL);
    if (!file_.isOpen()) {
        if (onlyOverwritingIsLeft(errno)) {
            return false;
        }
        FileFailure::note(errno);
        return true;
    }
    written_ = std::move(name);
    if (!becomesLike(old, file_)) {
        discard();
        return false;
    }
    target_ = std::move(taken);
    return true;
}

/// False if the old bytes may not be read.
bool WholeFile::startInPlace(const std::string& target, const struct stat* source) {
    std::string written = target;
    Descriptor file = openFileIn(directory_, target.c_str(), O_RDWR | O_NONBLOCK);
    if (!file.isOpen() && errno == EACCES) {
        return false;
    }
    struct stat status {};
    if (!noted(file.isOpen() && fstat(file.number(), &status) == 0)) {
        return true;
    }
    // Compared once more, now as opened, because the source must not be overwritten.
    if (!S_ISREG(status.st_mode) || (source != nullptr && isSameFile(status, *source))) {
        FileFailure::noteNotRegular();
        return true;
    }
    std::optional<std::string> old = bytesOf(file, status.st_size);
    if (noted(old.has_value())) {
        file_ = std::move(file);
        written_ = std::move(written);
        old_ = std::move(old);
    }
    return true;
}

/// The name of the file itself, which in an open directory is no link.
std::optional<std::string> WholeFile::withoutLinks(const std::string& name) const {
    if (directory_.isOpen()) {
        return name;
    }
    std::error_code failure;
    const std::filesystem::path found = std::filesystem::canonical(name, failure);
    return failure ? std::nullopt : std::optional(found.string());
}

/// Another file in its place would not have all that this one has.
bool WholeFile::cannotBeReplaced(const std::string& name, const struct stat& status) const {
    const std::string path =
        directory_.isOpen() ? "/proc/self/fd/" + std::to_string(directory_.number()) + "/" + name
                            : name;
    return status.st_nlink > 1 ||
           lgetxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) >= 0;
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
    const bool done = file_.close() && (target_.empty() || renameIn(directory_, written_, target_));
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
        file_ = openFileIn(directory_, written_.c_str(), O_WRONLY | O_NONBLOCK);
    }
    const std::string_view bytes = *old_;
    const bool done = file_.isOpen() && lseek(file_.number(), 0, SEEK_SET) == 0 &&
                      descriptor_io::writeAll(file_, {&bytes, 1}) &&
                      ftruncate(file_.number(), static_cast<off_t>(bytes.size())) == 0;
    return file_.close() && done;
}

void WholeFile::discard() noexcept {
    if (!written_.empty() && !(old_ && restoreOld())) {
        removeIn(directory_, written_);
    }
    static_cast<void>(file_.close());
    written_.clear();
}

}  // namespace quillmark
