#pragma once

#include <string>
#include <string_view>

#include "driver/pages/output_router.h"
#include "driver/text/contents_collector.h"
#include "driver/text/paragraph_style.h"
#include "driver/text/table_writer.h"
#include "page/field_kind.h"

namespace quillmark {

/// Running text, line ends and fields. Text is 8-bit here; links embedded in it are the
/// document's business.
class TextWriter {
public:
    TextWriter(OutputRouter& out, ContentsCollector& contents, ParagraphStyle& style,
               TableWriter& tables) noexcept
        : out_(out), contents_(contents), style_(style), tables_(tables) {}

    /// The text may carry markup of its own.
    void setPassThrough(bool passThrough) noexcept { passThrough_ = passThrough; }

    /// Plain text: a heading's first one gets its contents anchor, then it is escaped and written.
    void insertText(std::string_view text) {
        contents_.openAnchorForHeading(style_.headingLevel());
        insertEscaped(text);
    }
    /// The same without the anchor.
    void insertEscaped(std::string_view text);
    /// Writes finished HTML as body text: it feeds the contents, opens list items, fills cells.
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
    std::string escaped_;  // kept between calls for its memory alone
};

}  // namespace quillmark
