#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "platform/files/confinement.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/files/posix/confined_places.h"
#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"
#include "platform/files/posix/open_files.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark {

namespace {

/// Notes why there is no file: the place was not reached, or the system's reason.
void noteFailure(const ConfinedPlace& place) noexcept {
    FileFailure::note(place.isOpen() || place.failure == 0 ? errno : place.failure);
}

/// Nothing, without a note, if there is no such file.
std::optional<struct stat> statusAt(const ConfinedPlace& place) noexcept {
    errno = ENOENT;
    std::optional<struct stat> status;
    if (place.isOpen()) {
        status = descriptor_io::statusIn(place.parent, place.name.c_str());
    }
    const int failure = place.isOpen() || place.failure == 0 ? errno : place.failure;
    if (!status && !FileFailure::meansMissing(failure)) {
        FileFailure::note(failure);
    }
    return status;
}

/// Opens a file with content, not a device or a pipe.
Descriptor openAt(const ConfinedPlace& place, int flags) noexcept {
    errno = ENOENT;
    Descriptor file;
    if (place.isOpen()) {
        file = descriptor_io::openFileIn(place.parent, place.name.c_str(), flags | O_NONBLOCK);
    }
    struct stat status {};
    if (!file.isOpen() || fstat(file.number(), &status) != 0) {
        noteFailure(place);
        return {};
    }
    if (!S_ISREG(status.st_mode)) {
        FileFailure::noteNotRegular();
        return {};
    }
    return file;
}

class ConfinedFileSystem final : public FileSystem {
public:
    explicit ConfinedFileSystem(Confinement confinement)
        : writable_(confinement.writable),
          readable_(confinement.readable),
          refused_(std::move(confinement.refused)) {}

    bool fileExists(const OrxString& name) const override { return stamp(name).has_value(); }

    bool directoryExists(const OrxString& name) const override {
        const std::optional<struct stat> status = lookUp(nativePath(name));
        return status && S_ISDIR(status->st_mode);
    }

    std::optional<FileStamp> stamp(const OrxString& name) const override {
        const std::string path = nativePath(name);
        const std::optional<struct stat> status = lookUp(path);
        if (!status || S_ISLNK(status->st_mode)) {
            reportHidden(path);
            return std::nullopt;
        }
        if (S_ISDIR(status->st_mode)) {
            return std::nullopt;
        }
        constexpr std::int64_t nanosecondsInSecond = 1'000'000'000;
        return FileStamp{static_cast<std::uint64_t>(status->st_size),
                         status->st_mtim.tv_sec * nanosecondsInSecond + status->st_mtim.tv_nsec,
                         status->st_ino};
    }

    bool copyFile(const OrxString& source, const OrxString& target) override {
        const ConfinedPlace from = writable_.find(nativePath(source));
        ConfinedPlace to = place(writable_, target, RefusedAccess::write);
        const std::optional<struct stat> one = statusAt(from);
        const std::optional<struct stat> other = statusAt(to);
        if (one && other && S_ISREG(one->st_mode) && one->st_dev == other->st_dev &&
            one->st_ino == other->st_ino) {
            return true;
        }
        const Descriptor content = openAt(place(readable_, source, RefusedAccess::read), O_RDONLY);
        if (!content.isOpen()) {
            return false;
        }
        WholeFile copy = whole(std::move(to));
        return copy.isOpen() && noted(descriptor_io::copyAll(content, copy.descriptor())) &&
               copy.commit();
    }

    bool deleteFile(const OrxString& name) override {
        const std::string path = nativePath(name);
        const ConfinedPlace found = writable_.find(path);
        if (!found.isOpen()) {
            reportHidden(path, RefusedAccess::write);
            return false;
        }
        return noted(descriptor_io::removeIn(found.parent, found.name));
    }

    bool makeDirectories(const OrxString& name) override {
        const std::string path = nativePath(name);
        if (path.empty()) {
            return false;
        }
        errno = 0;
        const bool made = writable_.makeDirectories(path);
        const int failure = errno;
        if (!made && (!writable_.contain(path) || writable_.find(path).behindLink)) {
            report(path, RefusedAccess::write);
            FileFailure::noteRefused();
        } else if (!made) {
            FileFailure::note(failure);
        }
        return made;
    }

    bool setCurrentDirectory(const OrxString& name) override {
        const std::string path = nativePath(name);
        const ConfinedPlace found = findAnywhere(path);
        if (!found.isOpen()) {
            reportHidden(path);
            return false;
        }
        const Descriptor directory(uninterrupted([&] {
            return openat(found.parent.number(), found.name.c_str(),
                          O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        }));
        return directory.isOpen() && fchdir(directory.number()) == 0;
    }

    OrxString currentDirectory() const override { return native().currentDirectory(); }

    std::unique_ptr<InputFile> openForReading(const OrxString& name) override {
        Descriptor file = openAt(place(readable_, name, RefusedAccess::read), O_RDONLY);
        return file.isOpen() ? std::make_unique<OpenInputFile>(std::move(file)) : nullptr;
    }

    std::unique_ptr<OutputFile> openForWriting(const OrxString& name) override {
        return output(name, O_TRUNC);
    }

    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override {
        WholeFile file = whole(place(writable_, name, RefusedAccess::write));
        return file.isOpen() ? std::make_unique<WholeOutputFile>(std::move(file)) : nullptr;
    }

    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override {
        return output(name, O_APPEND);
    }

    bool replaceFile(const OrxString& source, const OrxString& target) override {
        const ConfinedPlace from = place(writable_, source, RefusedAccess::write);
        const ConfinedPlace to = place(writable_, target, RefusedAccess::write);
        const std::optional<struct stat> status = statusAt(from);
        return status && S_ISREG(status->st_mode) && to.isOpen() &&
               noted(renameat(from.parent.number(), from.name.c_str(), to.parent.number(),
                              to.name.c_str()) == 0);
    }

    bool mayStart(const OrxString& program) const override {
        report(nativePath(program), RefusedAccess::start);
        return false;
    }

private:
    /// The place of a file below one of the directories. Not open, and reported, if there is none
    /// or if it is a link.
    [[nodiscard]] ConfinedPlace place(const ConfinedPlaces& places, const OrxString& name,
                                      RefusedAccess access) const {
        const std::string path = nativePath(name);
        ConfinedPlace found = places.find(path);
        if (found.behindLink) {
            report(path, access);
            FileFailure::noteRefused();
            return {};
        }
        if (!path.empty() && !places.contain(path)) {
            noteOutside(path, access);
        }
        return found;
    }

    [[nodiscard]] ConfinedPlace findAnywhere(const std::string& path) const {
        ConfinedPlace found = writable_.find(path);
        return found.isOpen() ? std::move(found) : readable_.find(path);
    }

    [[nodiscard]] std::optional<struct stat> lookUp(const std::string& path) const {
        return statusAt(findAnywhere(path));
    }

    std::unique_ptr<OutputFile> output(const OrxString& name, int flags) const {
        Descriptor file =
            openAt(place(writable_, name, RefusedAccess::write), O_WRONLY | O_CREAT | flags);
        return file.isOpen() ? std::make_unique<OpenOutputFile>(std::move(file)) : nullptr;
    }

    [[nodiscard]] static WholeFile whole(ConfinedPlace place) {
        if (!place.isOpen()) {
            noteFailure(place);
            return {};
        }
        return WholeFile::openIn(std::move(place.parent), place.name);
    }

    void noteOutside(const std::string& path, RefusedAccess access) const {
        if (access == RefusedAccess::read) {
            if (!reportHidden(path)) {
                FileFailure::note(ENOENT);
                return;
            }
        } else {
            report(path, access);
        }
        FileFailure::noteRefused();
    }

    /// Reports a file that is there but must not be used. False for one that is not there, and is
    /// not missed.
    bool reportHidden(const std::string& path, RefusedAccess access = RefusedAccess::read) const {
        struct stat status {};
        const bool isThere =
            !path.empty() && stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
        if (isThere) {
            report(path, access);
        }
        return isThere;
    }

    void report(const std::string& path, RefusedAccess access) const {
        {
            const std::lock_guard lock(mutex_);
            if (!reported_.emplace(access, path).second) {
                return;
            }
        }
        if (refused_) {
            refused_(path, access);
        }
    }

    ConfinedPlaces writable_;
    ConfinedPlaces readable_;
    std::function<void(const std::string& name, RefusedAccess access)> refused_;
    mutable std::mutex mutex_;
    mutable std::set<std::pair<RefusedAccess, std::string>> reported_;
};

}  // namespace

std::unique_ptr<FileSystem> makeConfinedFileSystem(Confinement confinement) {
    return std::make_unique<ConfinedFileSystem>(std::move(confinement));
}

}  // namespace quillmark
