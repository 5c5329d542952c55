#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// The names of a document's files. All are derived from the file name given to `create`.
class OutputNames {
public:
    static constexpr std::uint32_t firstPageNumber = 1;

    /// Splits the document's file name. The extension defaults to ".htm".
    void setDocument(const OrxString& fileName);
    /// Page names get "_dtl", which distinguishes them from the start page.
    void setDetailNames(bool detailNames) noexcept { detailNames_ = detailNames; }

    /// Drive, directory and name, without the extension.
    [[nodiscard]] const OrxString& baseName() const noexcept { return baseName_; }
    /// With its dot.
    [[nodiscard]] const OrxString& extension() const noexcept { return extension_; }
    /// Without a trailing separator.
    [[nodiscard]] const OrxString& outputDir() const noexcept { return outputDir_; }
    [[nodiscard]] OrxString documentFileName() const { return baseName_ + extension_; }

    /// The path of a page: rep_dtl.htm, rep_dtl2.htm, rep_dtl3.htm. Only the first page has no
    /// number. An empty `subDirectory` means the output directory.
    [[nodiscard]] OrxString pageFileName(std::uint32_t number, const OrxString& subDirectory) const;

    /// Shortens a subdirectory that would make a path too long: takes its parent until it fits, or
    /// until there is no parent.
    [[nodiscard]] OrxString shortenedDirectory(const OrxString& subDirectory) const;

private:
    OrxString baseName_;
    OrxString extension_{".htm"};
    OrxString outputDir_;
    bool detailNames_ = false;
};

}  // namespace quillmark
