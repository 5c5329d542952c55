#pragma once

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// Copies files next to the document, for everything that pages refer to.
class FileCopier {
public:
    FileCopier() = default;
    /// `dontCopy` lists extensions of files that are linked where they lie; it is searched as
    /// plain text, so an extension inside a longer word of it counts too.
    explicit FileCopier(OrxString dontCopy) : dontCopy_(std::move(dontCopy)) {}

    /// Copies `source` into `targetDir` (made when missing) under `targetName`, or under its own
    /// name when that is empty. Returns the name that pages should refer to: the copy's, or
    /// `source` when it was not copied because it is missing, must not be copied, or could not be
    /// (the last is told in the trace as an error line).
    OrxString copyToDir(const OrxString& source, const OrxString& targetDir,
                        const OrxString& targetName, const Trace& trace) const;

private:
    OrxString dontCopy_;
};

}  // namespace quillmark
