#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "platform/files/posix/descriptor.h"

namespace quillmark {

/// A file in the making. It is written whole or not at all: unless `commit` succeeds, the name
/// has no file afterwards, or the old one as it was. An existing file keeps its permissions, owner
/// and other names.
///
/// A new file is written under its own name and deleted after a failure. A small file that exists
/// is overwritten and gets its old bytes back after a failure; they fit, because its room on the
/// disk is never given up. That is faster than a second file. A large one, and one that may not be
/// read, is written beside the old one and takes its place in the end.
class WholeFile {
public:
    WholeFile() noexcept = default;
    WholeFile(WholeFile&& other) noexcept;
    WholeFile& operator=(WholeFile&& other) noexcept;
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    /// Undoes what was not committed.
    ~WholeFile();

    /// Opens a file of that name. Links are followed. On failure the result is not open, and
    /// `FileFailure` has the reason. If the name leads to the file with the status `source`, then
    /// nothing is opened or changed, and `isSource` is true.
    [[nodiscard]] static WholeFile open(const std::string& path,
                                        const struct stat* source = nullptr);
    /// The same for a name in a directory that is open. No link is followed: a link of that name is
    /// not a file.
    [[nodiscard]] static WholeFile openIn(Descriptor directory, const std::string& name,
                                          const struct stat* source = nullptr);

    [[nodiscard]] bool isOpen() const noexcept { return file_.isOpen(); }
    [[nodiscard]] bool isSource() const noexcept { return isSource_; }
    /// For writing from the start to the end.
    [[nodiscard]] const Descriptor& descriptor() const noexcept { return file_; }

    /// Closes the file and gives it its name. False if that fails.
    [[nodiscard]] bool commit() noexcept;

private:
    explicit WholeFile(Descriptor directory) noexcept;
    void start(const std::string& name, const struct stat* source);
    void startOverExisting(const std::string& name, const struct stat* source);
    void startThroughLink(const std::string& name);
    void startReplacing(const std::string& name, const struct stat& old);
    [[nodiscard]] bool startBeside(const std::string& target, const struct stat& old);
    [[nodiscard]] bool startInPlace(const std::string& target, const struct stat* source);
    [[nodiscard]] std::optional<std::string> withoutLinks(const std::string& name) const;
    [[nodiscard]] bool cannotBeReplaced(const std::string& name, const struct stat& status) const;
    [[nodiscard]] bool cutOldRest() const noexcept;
    [[nodiscard]] bool restoreOld() noexcept;
    void discard() noexcept;

    /// What the names count from. If it is not open, the current directory.
    Descriptor directory_;
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
