#pragma once

#include <initializer_list>
#include <string_view>

#include "foundation/orx_string.h"
#include "platform/file_system.h"

namespace quillmark {

/// Questions about file names, and the few things done with whole files.
///
/// Names may come with "/" or "\"; results are always built with "\". The name questions look at
/// the text only, never at the disk. A drive ("C:") belongs to the directory part.
class SysFile {
public:
    /// True for files only, not for directories.
    [[nodiscard]] static bool exists(const OrxString& name);
    /// Copies over `target`; onto itself is done and changes nothing.
    [[nodiscard]] static bool copy(const OrxString& source, const OrxString& target);
    static bool deleteFile(const OrxString& name);

    /// From the last "." of the file part on, the dot included; empty when there is none.
    [[nodiscard]] static OrxString getExtension(const OrxString& name);
    /// The file part: what stands behind the last separator (or a drive's colon).
    [[nodiscard]] static OrxString stripDir(const OrxString& name);
    /// The directory part without its last separator ("C:" for "C:\a.htm", empty for "a.htm").
    [[nodiscard]] static OrxString getDir(const OrxString& name);
    /// `dir` + "\" + `name`; an empty directory gives the name alone, and a separator that ends
    /// the directory is not doubled.
    [[nodiscard]] static OrxString appendToDir(const OrxString& dir, const OrxString& name);
    /// The relative path from `baseDir` to the directory of `name`, joined with its file part.
    [[nodiscard]] static OrxString getRelativeFileName(const OrxString& baseDir,
                                                       const OrxString& name);
    /// A scheme of two or more characters followed by "://", or "mailto:" or "news:".
    [[nodiscard]] static bool isHyperLink(const OrxString& text);

    /// Makes or empties `name` and writes the pieces behind each other, with one write where the
    /// system has one for that.
    [[nodiscard]] static WriteResult writeWhole(const OrxString& name,
                                                std::span<const std::string_view> pieces);
};

}  // namespace quillmark
