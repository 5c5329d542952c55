#pragma once

#include <string_view>

#include "driver/bookmarks.h"
#include "driver/document_context.h"

namespace quillmark {

/// True for a picture that browsers of old show: extension ".jpg", ".jpeg" or ".gif" exactly, so
/// ".JPG" is none.
[[nodiscard]] bool isImageName(const OrxString& fileName);

/// Writes links whose target is told by a host: a URL, a file, or the name of a bookmark.
///
///     const LinkWriter::Target target = links.open(name);
///     text.insertEscaped("link text");
///     links.close(target);
class LinkWriter {
public:
    /// What a target turned out to be when its link was opened; looking at the disk for it is the
    /// dearest part of a link, so the link's end does not look again.
    struct Target {
        OrxString name;
        /// How the link ends: with its own end tag, or as a bookmark's would. A target that was
        /// found only among the external documents is ended as a bookmark all the same, which
        /// leaves its end tag waiting for a bookmark of that name.
        bool endsAsBookmark = false;
    };

    LinkWriter(DocumentContext& context, Bookmarks& bookmarks) noexcept
        : context_(context), bookmarks_(bookmarks) {}

    /// A file is copied next to the document first when links are relative.
    [[nodiscard]] Target open(OrxString target);
    void close(const Target& target);
    /// The end tag alone.
    void writeEnd();

private:
    void writeStart(const OrxString& href);
    [[nodiscard]] OrxString linkOfFile(const OrxString& file);
    /// Whether a file of the target's name lies among the external documents; its name then is in
    /// `candidate_`.
    [[nodiscard]] bool findExternalDocument(const OrxString& target);

    DocumentContext& context_;
    Bookmarks& bookmarks_;
    OrxString candidate_;  // kept between calls for its memory alone
};

}  // namespace quillmark
