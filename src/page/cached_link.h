#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// The link from a directory to a file, remembered: the pages of a report lie in few directories
/// and ask for the same link again and again.
class CachedLink {
public:
    /// The same as `links::relativeFile`; the result lives until the next call.
    [[nodiscard]] const OrxString& relativeFile(const OrxString& fileName, const OrxString& base);

private:
    bool known_ = false;
    OrxString fileName_;
    OrxString base_;
    OrxString link_;
};

}  // namespace quillmark
