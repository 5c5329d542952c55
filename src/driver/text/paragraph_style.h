#pragma once

#include <cstdint>
#include <string_view>

#include "driver/pages/output_router.h"
#include "driver/text/contents_collector.h"
#include "driver/text/font_writer.h"

namespace quillmark {

/// Paragraph styles and alignment: which tags they open and close, and in which order.
///
/// The alignment's DIV opens inside the style's tags but closes in front of theirs. Numbered
/// lists are closed when their style ends; bulleted ones never are.
class ParagraphStyle {
public:
    ParagraphStyle(OutputRouter& out, FontWriter& font, ContentsCollector& contents) noexcept
        : out_(out), font_(font), contents_(contents) {}

    /// Makes a style current. The one already in force only loses its font.
    void setStyle(const OrxString& name);
    /// Makes an alignment current.
    void setAlign(TextAlign align);
    /// Closes font, style and alignment for good, in that order.
    void closeAll();

    /// Write the tags alone and leave the state as it is; table cells are opened and closed so.
    /// Both return the level of the style: of headings and lists when opening, of headings only
    /// when closing, else 0.
    std::int32_t openStyle(std::string_view name);
    std::int32_t closeStyle(std::string_view name);
    void openAlign(TextAlign align);
    /// The closing tag of the alignment in force, if there is one.
    void closeAlignTag();

    /// The level of the style last opened, 0 when it is neither a heading nor a list.
    [[nodiscard]] std::uint32_t headingLevel() const noexcept { return headingLevel_; }

    /// An item of a list begins with the first text of a line.
    [[nodiscard]] bool listItemOpen() const noexcept { return listItemOpen_; }
    void setListItemOpen(bool open) noexcept { listItemOpen_ = open; }

private:
    void endAlign();
    void endStyle();

    OutputRouter& out_;
    FontWriter& font_;
    ContentsCollector& contents_;
    std::uint32_t headingLevel_ = 0;
    bool listItemOpen_ = false;
};

}  // namespace quillmark
