#pragma once

#include "diagram/image_map.h"
#include "driver/links/link_writer.h"
#include "driver/pages/document_context.h"

namespace quillmark {

/// Writes pictures with their image maps, and copies them to the image directory.
class ImageWriter {
public:
    ImageWriter(DocumentContext& context, BookmarkWriter& bookmarks, LinkWriter& links) noexcept
        : context_(context), bookmarks_(bookmarks), links_(links) {}

    /// Starts a new document: its image maps are numbered from 0.
    void restart() noexcept { maps_.restart(); }
    /// Writes a picture, inside a link if `linkTarget` is not empty. If the picture is not found,
    /// only an error line is written, to the trace.
    void insertImage(const OrxString& imageFile, const OrxString& linkTarget);
    /// Whether the picture exists. A file name without a directory is also looked for among the
    /// installed pictures; `name` then becomes the path of the installed picture. Otherwise writes
    /// an error line to the trace.
    [[nodiscard]] bool findImage(OrxString& name);

private:
    DocumentContext& context_;
    BookmarkWriter& bookmarks_;
    LinkWriter& links_;
    ImageMapWriter maps_;
};

}  // namespace quillmark
