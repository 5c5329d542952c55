#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// Directories: questions about their names, and the few that the driver makes.
class SysDirectory {
public:
    [[nodiscard]] static bool exists(const OrxString& dir);
    /// Makes the directory and those above it. True when it is there afterwards.
    static bool create(const OrxString& dir);
    /// `create` when it does not exist.
    static bool checkDirectoryAndCreate(const OrxString& dir);

    /// `name` below `dir`; an absolute name (drive-qualified, or beginning with a separator) is
    /// itself. Nothing is looked up on the disk.
    [[nodiscard]] static OrxString getSpecificPath(const OrxString& dir, const OrxString& name);
    /// The directory above, empty when there is none ("a" and "C:" have none).
    [[nodiscard]] static OrxString getParentDirectory(const OrxString& dir);
    /// How to get from directory `base` to `target`, by components and without looking at the
    /// disk: equal paths give "", otherwise one ".." for each component of `base` behind the
    /// common ones, then the rest of `target`. Two relative names share an unnamed root, so
    /// from "s2" to "s1" is "..\s1". From an absolute name to a relative one, the other way round,
    /// or to another drive the result is `target` unchanged. "." and ".." are names like others;
    /// empty components are dropped; a leading separator is a component of its own. Components are
    /// compared ignoring case on Windows only, a drive letter everywhere.
    [[nodiscard]] static OrxString getRelativePath(const OrxString& base, const OrxString& target);

    [[nodiscard]] static bool setCurrentDir(const OrxString& dir);
    [[nodiscard]] static OrxString getCurrentDir();
};

}  // namespace quillmark
