#pragma once

#include "driver/pages/document_settings.h"
#include "driver/pages/output_names.h"
#include "driver/pages/output_router.h"
#include "page/file_copier.h"
#include "page/links/cached_link.h"
#include "platform/text_encoding.h"
#include "platform/trace.h"

namespace quillmark {

/// What most parts of a document share: file names, settings, output, trace, and the copying of
/// files. There is one per document, and the parts keep a reference to it.
struct DocumentContext {
    /// How the document keeps its texts and names as bytes; never null.
    const TextEncoding* encoding = &TextEncoding::current();
    Trace trace;
    OutputRouter out;
    OutputNames names;
    DocumentSettings settings;
    FileCopier copier;

    /// The directory of the current page.
    [[nodiscard]] OrxString pageDir() const;
    /// The base directory of the current page's links: the page's own directory, or the default
    /// base directory if it has none.
    [[nodiscard]] OrxString linkBase() const;
    /// The link from the current page to a file: a relative link, or an absolute file URL when
    /// relative links are off.
    [[nodiscard]] OrxString documentLink(const OrxString& fileName) const;
    /// The same for a file that many pages link to: `cached` holds its last link.
    [[nodiscard]] OrxString documentLink(const OrxString& fileName, CachedLink& cached) const;
    /// Copies a file into a directory, under its own name. Returns the path to link to: the copy,
    /// or the source when it was not copied.
    OrxString copyTo(const OrxString& directory, const OrxString& fileName) const;
    /// Writes an error line to the trace.
    void traceError(std::string_view opening, std::string_view subject) const;
};

}  // namespace quillmark
