#pragma once

#include "diagram/image_map.h"
#include "driver/links/link_writer.h"
#include "driver/pages/document_context.h"

namespace quillmark {

/// Pictures: found, copied next to the document, shown with their image map.
class ImageWriter {
public:
    ImageWriter(DocumentContext& context, BookmarkWriter& bookmarks, LinkWriter& links) noexcept
        : context_(context), bookmarks_(bookmarks), links_(links) {}

    /// For a new document: image maps are counted from 0.
    void restart() noexcept { maps_.restart(); }
    /// Shows a picture, as a link when `linkTarget` is not empty. A picture that is not found is
    /// only told in the trace.
    void insertImage(const OrxString& imageFile, const OrxString& linkTarget);
    /// Whether the picture is there. A bare name that is not found may stand for a picture of the
    /// installation directory, whose name then takes its place.
    [[nodiscard]] bool findImage(OrxString& name);

private:
    DocumentContext& context_;
    BookmarkWriter& bookmarks_;
    LinkWriter& links_;
    ImageMapWriter maps_;
};

}  // namespace quillmark
