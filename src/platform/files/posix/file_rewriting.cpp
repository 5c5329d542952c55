#include "platform/files/posix/file_rewriting.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark::file_rewriting {

namespace {

constexpr mode_t ownersPermissions = 0600;
constexpr mode_t everybodysPermissions = 0666;
constexpr mode_t permissionBits = 07777;

/// A new file, which its destructor removes unless it has taken the place of another one.
class TemporaryFile {
public:
    /// Beside `path`. Nobody else has a file of that name open.
    TemporaryFile(const std::string& path, mode_t mode) {
        static std::atomic<unsigned> counter{0};
        constexpr int attempts = 100;
        // A process that was killed may have left a file of the same name.
        for (int i = 0; i < attempts && !file_.isOpen() && (i == 0 || errno == EEXIST); ++i) {
            name_ =
                path + "." + std::to_string(getpid()) + "-" + std::to_string(counter++) + ".tmp";
            file_ = Descriptor(uninterrupted([&] {
                return open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                            mode);
            }));
        }
        exists_ = noted(file_.isOpen());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (exists_) {
            unlink(name_.c_str());
        }
    }

    [[nodiscard]] const Descriptor& file() const noexcept { return file_; }
    [[nodiscard]] bool replace(const std::string& path) noexcept {
        const bool done = noted(file_.close() && std::rename(name_.c_str(), path.c_str()) == 0);
        exists_ = exists_ && !done;
        return done;
    }

private:
    std::string name_;
    Descriptor file_;
    bool exists_ = false;
};

/// Gives a file the owner and group of another one.
bool takeOwner(const Descriptor& file, const struct stat& old) noexcept {
    struct stat own {};
    if (!noted(fstat(file.number(), &own) == 0)) {
        return false;
    }
    return (own.st_uid == old.st_uid && own.st_gid == old.st_gid) ||
           noted(fchown(file.number(), old.st_uid, old.st_gid) == 0);
}

bool fill(const Descriptor& file, std::string_view content) noexcept {
    return file.isOpen() && noted(descriptor_io::writeAll(file, std::array{content}));
}

bool create(const std::string& path, std::string_view content) {
    TemporaryFile next(path, everybodysPermissions);
    return fill(next.file(), content) && next.replace(path);
}

bool replace(const std::string& path, const struct stat& old, std::string_view content) {
    // The owner comes before the permissions: until then the group is another one.
    TemporaryFile next(path, old.st_mode & ownersPermissions);
    return fill(next.file(), content) && takeOwner(next.file(), old) &&
           noted(fchmod(next.file().number(), old.st_mode & permissionBits) == 0) &&
           next.replace(path);
}

}  // namespace

std::optional<std::string> withoutLinks(const std::string& path) {
    constexpr int mostLinks = 40;
    std::filesystem::path name = path;
    for (int i = 0; i < mostLinks; ++i) {
        std::error_code noLink;
        const std::filesystem::path target = std::filesystem::read_symlink(name, noLink);
        if (noLink) {
            return name.string();
        }
        name = name.parent_path() / target;
    }
    return std::nullopt;
}

bool rewrite(const std::string& path, std::string_view content) {
    const std::optional<std::string> name = withoutLinks(path);
    if (!name) {
        FileFailure::note(ELOOP);
        return false;
    }
    struct stat old {};
    if (stat(name->c_str(), &old) != 0) {
        return noted(errno == ENOENT) && create(*name, content);
    }
    // A device or a pipe has no content that could be replaced.
    if (!S_ISREG(old.st_mode)) {
        FileFailure::noteNotRegular();
        return false;
    }
    return replace(*name, old, content);
}

}  // namespace quillmark::file_rewriting
