#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "platform/files/posix/descriptor.h"

namespace quillmark {

/// A file in the making. It is written whole or not at all: unless `commit` succeeds, the name
/// has no file afterwards, or the old one as it was. Links are followed. An existing file keeps its
/// permissions, owner and other names.
///
/// A new file is written under its own name and deleted after a failure. A small file that exists
/// is overwritten and gets its old bytes back after a failure; they fit, because its room on the
/// disk is never given up. That is faster than a second file. A large one is written beside the old
/// one and takes its place in the end.
class WholeFile {
public:
    WholeFile() noexcept = default;
    WholeFile(WholeFile&& other) noexcept;
    WholeFile& operator=(WholeFile&& other) noexcept;
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    /// Undoes what was not committed.
    ~WholeFile();

    /// Opens a file of that name. On failure the result is not open, and `FileFailure` has the
    /// reason. If the name leads to the file with the status `source`, then nothing is opened or
    /// changed, and `isSource` is true.
    [[nodiscard]] static WholeFile open(const std::string& path,
                                        const struct stat* source = nullptr);

    [[nodiscard]] bool isOpen() const noexcept { return file_.isOpen(); }
    [[nodiscard]] bool isSource() const noexcept { return isSource_; }
    /// For writing from the start to the end.
    [[nodiscard]] const Descriptor& descriptor() const noexcept { return file_; }

    /// Closes the file and gives it its name. False if that fails.
    [[nodiscard]] bool commit() noexcept;

private:
    WholeFile(Descriptor file, std::string written) noexcept;
    static WholeFile overExisting(const std::string& path, const struct stat* source);
    static WholeFile throughLink(const std::string& path);
    static WholeFile beside(const std::string& target, const struct stat& old);
    static WholeFile inPlace(const std::string& target, const struct stat* source);
    [[nodiscard]] bool cutOldRest() const noexcept;
    [[nodiscard]] bool restoreOld() noexcept;
    void discard() noexcept;

    Descriptor file_;
    /// The file that is being written; empty if nothing is left to undo.
    std::string written_;
    /// The file that it replaces; empty if it has its own name already.
    std::string target_;
    /// The old bytes of a file that is overwritten.
    std::optional<std::string> old_;
    bool isSource_ = false;
};

}  // namespace quillmark
