#pragma once

#include <cstdint>
#include <string_view>

#include "driver/pages/output_router.h"
#include "driver/text/contents_collector.h"
#include "driver/text/font_writer.h"

namespace quillmark {

/// Opens and closes the tags of paragraph styles and alignments, in their fixed order.
///
/// A change of style closes the alignment's DIV before the style's tags; the end of a page or
/// section closes it after them. Numbered lists are closed when their style ends, bulleted lists
/// are never closed.
class ParagraphStyle {
public:
    ParagraphStyle(OutputRouter& out, FontWriter& font, ContentsCollector& contents) noexcept
        : out_(out), font_(font), contents_(contents) {}

    /// Makes a style current. Setting the current style again only closes the font.
    void setStyle(std::string_view name);
    /// Makes an alignment current.
    void setAlign(TextAlign align);
    /// Closes font, style and alignment, in that order.
    void closeAll();

    /// Write only the tags and leave the state unchanged, for the start and the end of table cells.
    /// `closeStyle` returns the level of a heading, otherwise 0.
    void openStyle(std::string_view name);
    std::int32_t closeStyle(std::string_view name);
    void openAlign(TextAlign align);
    /// Writes the closing tag of the current alignment, if there is one.
    void closeAlignTag();

    /// The level of the style that `setStyle` opened last; 0 if it is neither a heading nor a list.
    [[nodiscard]] std::uint32_t headingLevel() const noexcept { return headingLevel_; }

    /// Whether the current line of a list has its item tag. The first text of a line writes it.
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
    // The tags that are being written and the style that comes next. Members only to reuse their
    // memory.
    std::string tags_;
    OrxString next_;
};

}  // namespace quillmark
