#pragma once

#include <string>
#include <string_view>

#include "driver/links/bookmark_writer.h"
#include "driver/pages/document_context.h"

namespace quillmark {

/// Writes links to a target that the host names: a URL, a file, or a bookmark.
///
///     const LinkWriter::End end = links.open(target);
///     text.insertEscaped("link text");
///     links.close(target, end);
class LinkWriter {
public:
    /// How a link ends: with its end tag at once, or with an end tag that waits for the bookmark
    /// as the start tag does. `open` decides it, because disk lookups dominate the cost of a link.
    /// A target found only in the directory of external documents still ends as a bookmark: its end
    /// tag waits for a bookmark of that name.
    enum class End { tag, bookmark };

    LinkWriter(DocumentContext& context, BookmarkWriter& bookmarks) noexcept
        : context_(context), bookmarks_(bookmarks) {}

    /// Writes the start of a link. When links are relative, a file is first copied to the
    /// document's directories.
    [[nodiscard]] End open(const OrxString& target);
    /// Writes the end that `open` returned for this target.
    void close(const OrxString& target, End end);
    /// Writes the end tag.
    void writeEnd();

private:
    void writeStart(const OrxString& href);
    [[nodiscard]] OrxString linkOfFile(const OrxString& file);
    /// Looks for a file with the target's name in the directory of external documents. Puts its
    /// path into `candidate_`.
    [[nodiscard]] bool findExternalDocument(const OrxString& target);

    DocumentContext& context_;
    BookmarkWriter& bookmarks_;
    // Members only to reuse their memory.
    OrxString candidate_;
    std::string markup_;
};

}  // namespace quillmark
