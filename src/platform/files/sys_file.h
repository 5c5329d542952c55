#pragma once

#include <initializer_list>
#include <string_view>

#include "foundation/orx_string.h"
#include "platform/files/file_system.h"
#include "platform/trace.h"

namespace quillmark {

/// Operations on files and their names.
///
/// Names may contain "/" or "\"; results contain "\". Operations on names do not access the disk. A
/// drive ("C:") belongs to the directory part.
class SysFile {
public:
    /// True for a file, false for a directory.
    [[nodiscard]] static bool exists(const OrxString& name);
    /// The same. If the system cannot answer, for instance because it may not look into the
    /// directory, the trace gets error lines with the reason.
    [[nodiscard]] static bool exists(const OrxString& name, const Trace& trace);
    /// Copies a file; see `FileSystem::copyFile`. After a failure `FileFailure` has the reason.
    [[nodiscard]] static bool copy(const OrxString& source, const OrxString& target);
    static bool deleteFile(const OrxString& name);

    /// The extension: everything from the last "." of the file part, dot included. May be empty.
    [[nodiscard]] static OrxString getExtension(const OrxString& name);
    /// The file part: everything after the last separator or the drive's colon.
    [[nodiscard]] static OrxString stripDir(const OrxString& name);
    /// The directory part without its last separator ("C:" for "C:\a.htm", empty for "a.htm").
    [[nodiscard]] static OrxString getDir(const OrxString& name);
    /// `dir` + "\" + `name`. An empty directory gives the name alone. A separator at the end of the
    /// directory is not doubled.
    [[nodiscard]] static OrxString appendToDir(const OrxString& dir, const OrxString& name);
    /// The relative path from `baseDir` to the directory of `name`, joined with the file part.
    [[nodiscard]] static OrxString getRelativeFileName(const OrxString& baseDir,
                                                       const OrxString& name);
    /// True if the text starts with a scheme of two or more characters and "://", or with "mailto:"
    /// or "news:".
    [[nodiscard]] static bool isHyperLink(const OrxString& text);

    /// Writes the pieces one after the other into the file `name`, in a single system call if the
    /// system has one for that. After a failure there is no such file, or the old one as it was
    /// (see `FileSystem::openForReplacing`), and `FileFailure` has the reason.
    [[nodiscard]] static WriteResult writeWhole(const OrxString& name,
                                                std::span<const std::string_view> pieces);
};

}  // namespace quillmark
