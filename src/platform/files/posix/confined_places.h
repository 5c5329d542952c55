#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files/posix/descriptor.h"

namespace quillmark {

/// A file below a directory that is open: its parent, itself open, and its name in that. The name
/// is "." for the directory itself.
struct ConfinedPlace {
    Descriptor parent;
    std::string name;
    /// What the place was reached through has a symbolic link in it.
    bool behindLink = false;
    /// The system's reason if a directory on the way cannot be opened.
    int failure = 0;

    [[nodiscard]] bool isOpen() const noexcept { return parent.isOpen(); }
};

/// Directories and single files that are open for use. A file below one of the directories is
/// reached from the open directory, one component after the other, never through a symbolic link.
/// So the system cannot be made to look elsewhere, whatever is exchanged on the disk meanwhile.
class ConfinedPlaces {
public:
    /// Opens the directories among the names. All others are single files.
    explicit ConfinedPlaces(const std::vector<std::string>& names);

    /// Whether the name is below one of the directories, or one of the files. "." and ".." are
    /// resolved without access to the disk.
    [[nodiscard]] bool contain(const std::string& path) const;
    /// The place of a file, not open if the name is elsewhere, or if a directory on the way is
    /// missing or a link.
    [[nodiscard]] ConfinedPlace find(const std::string& path) const;
    /// Creates a directory and its missing parents. False if it is not below one of the
    /// directories.
    [[nodiscard]] bool makeDirectories(const std::string& path) const;

private:
    using Components = std::vector<std::string>;
    struct Root {
        Components name;
        Descriptor directory;
        /// Only the file of this name in the directory; empty for all files.
        std::string onlyFile;
    };
    struct Hit {
        const Root* root;
        /// Below the root; empty for the root itself.
        Components below;
    };

    void add(const std::string& name);
    void addFile(const std::string& absolute);
    [[nodiscard]] std::optional<Hit> rootOf(const std::string& path) const;

    std::vector<Root> roots_;
};

}  // namespace quillmark
