#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// The names of a document's files, all made from the file name given to `create`.
class OutputNames {
public:
    static constexpr std::uint32_t firstPageNumber = 1;

    /// Splits the document's file name; without an extension it is ".htm".
    void setDocument(const OrxString& fileName);
    /// With detail names pages are told apart from the start page by "_dtl".
    void setDetailNames(bool detailNames) noexcept { detailNames_ = detailNames; }

    /// Drive, directory and name, without the extension.
    [[nodiscard]] const OrxString& baseName() const noexcept { return baseName_; }
    /// With its dot.
    [[nodiscard]] const OrxString& extension() const noexcept { return extension_; }
    /// Without a separator at its end.
    [[nodiscard]] const OrxString& outputDir() const noexcept { return outputDir_; }
    [[nodiscard]] OrxString documentFileName() const { return baseName_ + extension_; }

    /// The file of a page, in a subdirectory of the output directory when one is given:
    /// rep_dtl.htm, rep_dtl2.htm, rep_dtl3.htm; only the first page has no number.
    [[nodiscard]] OrxString pageFileName(std::uint32_t number, const OrxString& subDirectory) const;

    /// The subdirectory made short enough for a path, by going up from it; a directory with
    /// nothing above it stays as it is.
    [[nodiscard]] OrxString shortenedDirectory(OrxString subDirectory) const;

private:
    OrxString baseName_;
    OrxString extension_{".htm"};
    OrxString outputDir_;
    bool detailNames_ = false;
};

}  // namespace quillmark
