#pragma once

#include <string>
#include <string_view>

#include "driver/pages/output_router.h"
#include "driver/text/contents_collector.h"
#include "driver/text/paragraph_style.h"
#include "driver/text/table_writer.h"
#include "page/field_kind.h"

namespace quillmark {

/// Writes running text, line ends and fields. Text is already 8-bit here. `DocHtml` handles the
/// links that are embedded in a text.
class TextWriter {
public:
    TextWriter(OutputRouter& out, ContentsCollector& contents, ParagraphStyle& style,
               TableWriter& tables) noexcept
        : out_(out), contents_(contents), style_(style), tables_(tables) {}

    /// Whether texts carry markup of their own.
    void setPassThrough(bool passThrough) noexcept { passThrough_ = passThrough; }

    /// Writes a text, converted to HTML. The first text of a heading gets an anchor for the
    /// contents.
    void insertText(std::string_view text) {
        contents_.openAnchorForHeading(style_.headingLevel());
        insertEscaped(text);
    }
    /// The same without the anchor.
    void insertEscaped(std::string_view text);
    /// Writes finished HTML. In the body it counts as text: it is collected for contents entries,
    /// opens list items, and fills table cells.
    void emitText(std::string_view html);
    void insertEndl();
    /// Adds a field to the open section, or its value to the body. An unknown kind is empty.
    void insertField(FieldKind kind);

private:
    OutputRouter& out_;
    ContentsCollector& contents_;
    ParagraphStyle& style_;
    TableWriter& tables_;
    bool passThrough_ = false;
    std::string escaped_;  // a member only to reuse its memory
};

}  // namespace quillmark
