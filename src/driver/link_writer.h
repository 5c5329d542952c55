#pragma once

#include <string_view>

#include "driver/bookmarks.h"
#include "driver/document_context.h"

namespace quillmark {

/// True for a picture that browsers of old show: extension ".jpg", ".jpeg" or ".gif" exactly, so
/// ".JPG" is none.
[[nodiscard]] bool isImageName(const OrxString& fileName);

/// Writes the beginning and the end of a link whose target is told by a host: a URL, a file, or
/// the name of a bookmark.
class LinkWriter {
public:
    LinkWriter(DocumentContext& context, Bookmarks& bookmarks) noexcept
        : context_(context), bookmarks_(bookmarks) {}

    /// A file is copied next to the document first when links are relative.
    void open(const OrxString& target);
    /// Ends the link. A target that was found only among the external documents is ended as a
    /// bookmark would be, which leaves its end tag waiting for a bookmark of that name.
    void close(const OrxString& target);

private:
    /// The link of a URL or file, empty for the name of a bookmark.
    [[nodiscard]] OrxString hrefOf(const OrxString& target);

    DocumentContext& context_;
    Bookmarks& bookmarks_;
};

}  // namespace quillmark
