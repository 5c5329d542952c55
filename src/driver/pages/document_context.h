#pragma once

#include "driver/pages/document_settings.h"
#include "driver/pages/output_names.h"
#include "driver/pages/output_router.h"
#include "page/cached_link.h"
#include "page/file_copier.h"
#include "platform/trace.h"

namespace quillmark {

/// What most parts of a document look at: its names, its settings, where output goes, and how
/// files get next to it. One a document; the parts keep a reference.
struct DocumentContext {
    Trace trace;
    OutputRouter out;
    OutputNames names;
    DocumentSettings settings;
    FileCopier copier;

    /// Directory of the page being written.
    [[nodiscard]] OrxString pageDir() const;
    /// Directory that the current page's links count from: its own, or the default base directory
    /// when it has none.
    [[nodiscard]] OrxString linkBase() const;
    /// The link of a file as pages refer to it: relative to the current page, or an absolute file
    /// URL when relative links are off.
    [[nodiscard]] OrxString documentLink(const OrxString& fileName) const;
    /// The same for a file that many pages refer to.
    [[nodiscard]] OrxString documentLink(const OrxString& fileName, CachedLink& cached) const;
    /// Copies a file under its own name and returns the name to refer to.
    OrxString copyTo(const OrxString& directory, const OrxString& fileName) const;
    /// Writes an error line to the trace.
    void traceError(std::string_view opening, std::string_view subject) const;
};

}  // namespace quillmark
