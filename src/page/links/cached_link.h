#pragma once

#include "foundation/orx_string.h"
#include "platform/text_encoding.h"

namespace quillmark {

/// Caches the last link from a directory to a file, and the directory part of it. The pages of a
/// report are in few directories, so most of them need the same link, or one with the same
/// directory part.
class CachedLink {
public:
    /// The same as `links::relativeFile`. The result is valid until the next call.
    [[nodiscard]] const OrxString& relativeFile(const OrxString& fileName, const OrxString& base);

private:
    void findDirectory(std::string_view directory, const OrxString& base);

    /// Null while nothing is known.
    const TextEncoding* encoding_ = nullptr;
    /// The directory of the last file, with its separator, and what links to its files begin with.
    OrxString directory_;
    OrxString base_;
    OrxString opening_;
    /// Of the last file; empty while no link is known.
    OrxString fileName_;
    OrxString link_;
};

}  // namespace quillmark
