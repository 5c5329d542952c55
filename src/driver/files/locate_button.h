#pragma once

#include "driver/pages/document_context.h"
#include "driver/text/text_writer.h"

namespace quillmark {

/// Writes "Locate in browser" buttons. A click selects the contents entry of the button's place.
class LocateButton {
public:
    LocateButton(DocumentContext& context, TextWriter& text) noexcept
        : context_(context), text_(text) {}

    /// Writes a button. The first one also copies its pictures. Does nothing if the setting is off.
    void insert();

private:
    void copyPictures();

    DocumentContext& context_;
    TextWriter& text_;
    bool locateImagesPending_ = true;
};

}  // namespace quillmark
