#pragma once

#include <string>
#include <string_view>

#include "driver/links/bookmark_writer.h"
#include "driver/pages/document_context.h"

namespace quillmark {

/// Writes links whose target is told by a host: a URL, a file, or the name of a bookmark.
///
///     const LinkWriter::End end = links.open(target);
///     text.insertEscaped("link text");
///     links.close(target, end);
class LinkWriter {
public:
    /// How a link ends: with its end tag, or with one that waits for the bookmark as the beginning
    /// does. Looking at the disk for a target is the dearest part of a link, so it is decided when
    /// the link is opened. A target that was found only among the external documents is ended as a
    /// bookmark all the same, which leaves its end tag waiting for a bookmark of that name.
    enum class End { tag, bookmark };

    LinkWriter(DocumentContext& context, BookmarkWriter& bookmarks) noexcept
        : context_(context), bookmarks_(bookmarks) {}

    /// A file is copied next to the document first when links are relative.
    [[nodiscard]] End open(const OrxString& target);
    void close(const OrxString& target, End end);
    /// The end tag alone.
    void writeEnd();

private:
    void writeStart(const OrxString& href);
    [[nodiscard]] OrxString linkOfFile(const OrxString& file);
    /// Whether a file of the target's name lies among the external documents; its name then is in
    /// `candidate_`.
    [[nodiscard]] bool findExternalDocument(const OrxString& target);

    DocumentContext& context_;
    BookmarkWriter& bookmarks_;
    // Kept between calls for their memory alone.
    OrxString candidate_;
    std::string markup_;
};

}  // namespace quillmark
