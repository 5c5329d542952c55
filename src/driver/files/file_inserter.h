#pragma once

#include <cstdint>

#include "driver/files/image_writer.h"
#include "driver/links/link_writer.h"
#include "driver/pages/document_context.h"
#include "driver/text/text_writer.h"

namespace quillmark {

/// Outside documents: linked, shown when they are pictures, or pasted line by line.
class FileInserter {
public:
    /// Every other kind is a link.
    static constexpr std::int16_t asContents = 3;

    FileInserter(DocumentContext& context, LinkWriter& links, ImageWriter& images,
                 TextWriter& text) noexcept
        : context_(context), links_(links), images_(images), text_(text) {}

    /// Puts the file's contents in, a picture or the lines of a text, when it comes as contents;
    /// a link to it for every other type. What cannot be found leaves nothing.
    void insertFile(const OrxString& fileName, std::int16_t insertAsType);

private:
    void insertContents(const OrxString& name);
    void pasteLines(const OrxString& name);

    DocumentContext& context_;
    LinkWriter& links_;
    ImageWriter& images_;
    TextWriter& text_;
};

}  // namespace quillmark
