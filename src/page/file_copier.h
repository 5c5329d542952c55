#pragma once

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// Copies the files that pages refer to into the directories of the document.
class FileCopier {
public:
    FileCopier() = default;
    /// `dontCopy` lists extensions of files that are not copied, such as ".doc.pdf". It is searched
    /// as plain text, so an extension inside a longer one counts too.
    explicit FileCopier(OrxString dontCopy) : dontCopy_(std::move(dontCopy)) {}

    /// Copies `source` into `targetDir`, which is created if missing. An empty `targetName` keeps
    /// the name of the file. Returns the name that pages should refer to. This is the copy, or
    /// `source` if it does not exist, must not be copied or cannot be copied. Failed copies are
    /// reported to the trace as errors.
    OrxString copyToDir(const OrxString& source, const OrxString& targetDir,
                        const OrxString& targetName, const Trace& trace) const;

private:
    OrxString dontCopy_;
};

}  // namespace quillmark
