#pragma once

#include "driver/pages/document_context.h"
#include "driver/text/text_writer.h"

namespace quillmark {

/// The "Locate in browser" button: pressed, it lets the contents select the entry of its place.
class LocateButton {
public:
    LocateButton(DocumentContext& context, TextWriter& text) noexcept
        : context_(context), text_(text) {}

    /// Writes a button; the first one also copies its pictures. Does nothing when the setting is
    /// off.
    void insert();

private:
    void copyPictures();

    DocumentContext& context_;
    TextWriter& text_;
    bool locateImagesPending_ = true;
};

}  // namespace quillmark
