#pragma once

#include <cstdint>

#include "driver/files/image_writer.h"
#include "driver/links/link_writer.h"
#include "driver/pages/document_context.h"
#include "driver/text/text_writer.h"

namespace quillmark {

/// The codes of `insertFile` that mean something. Every other code is a link to the file.
enum class InsertAs : std::int16_t { contents = 3 };

/// Inserts outside files: as a link, as a picture, or as text, line by line.
class FileInserter {
public:
    FileInserter(DocumentContext& context, LinkWriter& links, ImageWriter& images,
                 TextWriter& text) noexcept
        : context_(context), links_(links), images_(images), text_(text) {}

    /// Inserts the file's contents (a picture, or the lines of a text) or a link to the file.
    /// Writes nothing when the file cannot be found.
    void insertFile(const OrxString& fileName, InsertAs as);

private:
    void insertContents(const OrxString& name);
    void pasteLines(const OrxString& name);

    DocumentContext& context_;
    LinkWriter& links_;
    ImageWriter& images_;
    TextWriter& text_;
};

}  // namespace quillmark
