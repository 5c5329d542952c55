#pragma once

#include "foundation/orx_string.h"
#include "platform/text_encoding.h"

namespace quillmark {

/// Caches the last link from a directory to a file. The pages of a report are in few directories,
/// so most of them need the same link.
class CachedLink {
public:
    /// The same as `links::relativeFile`. The result is valid until the next call.
    [[nodiscard]] const OrxString& relativeFile(const OrxString& fileName, const OrxString& base);

private:
    /// Null while nothing is known.
    const TextEncoding* encoding_ = nullptr;
    OrxString fileName_;
    OrxString base_;
    OrxString link_;
};

}  // namespace quillmark
