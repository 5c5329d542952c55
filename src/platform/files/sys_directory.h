#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// Operations on directories and their names. Names may contain "/" or "\"; results contain "\",
/// unless stated otherwise.
class SysDirectory {
public:
    [[nodiscard]] static bool exists(const OrxString& dir);
    /// Creates the directory and its missing parents. True if it exists afterwards.
    static bool create(const OrxString& dir);
    /// Creates the directory if it does not exist. True if it exists afterwards.
    static bool checkDirectoryAndCreate(const OrxString& dir);

    /// `dir` joined with `name`, or `name` alone if it is absolute (starts with a drive or a
    /// separator). Does not access the disk.
    [[nodiscard]] static OrxString getSpecificPath(const OrxString& dir, const OrxString& name);
    /// The parent directory. Empty if there is none, as for "a" and "C:".
    [[nodiscard]] static OrxString getParentDirectory(const OrxString& dir);
    /// The path from directory `base` to `target`, worked out from the components alone, without
    /// access to the disk. The result is empty for equal paths. Otherwise it has one ".." for each
    /// component of `base` after the common ones, then the rest of `target`. Two relative paths
    /// start from the same unnamed directory. If one path is absolute and the other relative, or
    /// they are on different drives, the result is `target` unchanged. "." and ".." are ordinary
    /// names, empty components are dropped, and a leading separator is a component of its own. The
    /// case of names matters except on Windows. The case of drive letters never matters.
    ///
    ///     getRelativePath("C:\\out\\deep", "C:\\out\\pix\\a.gif");   // "..\\pix\\a.gif"
    ///     getRelativePath("s2", "s1");                             // "..\\s1"
    [[nodiscard]] static OrxString getRelativePath(const OrxString& base, const OrxString& target);

    [[nodiscard]] static bool setCurrentDir(const OrxString& dir);
    [[nodiscard]] static OrxString getCurrentDir();
};

}  // namespace quillmark
