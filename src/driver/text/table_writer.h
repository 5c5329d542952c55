#pragma once

#include <array>
#include <cstdint>

#include "driver/pages/output_router.h"
#include "driver/text/font_writer.h"
#include "driver/text/paragraph_style.h"

namespace quillmark {

/// Writes tables, nested up to five deep. The host does not say where a cell or a row ends.
/// `startTable` and `addRow` only set a flag; the next `addCell` writes the tags.
///
/// Every cell is self-contained: the current font, style and alignment are closed at its end and
/// reopened in the next cell.
class TableWriter {
public:
    TableWriter(OutputRouter& out, FontWriter& font, ParagraphStyle& style) noexcept
        : out_(out), font_(font), style_(style) {}

    /// Starts a table. Beyond five levels its calls are ignored, and its text goes into the open
    /// cell.
    void startTable();
    void addRow() noexcept;
    void addCell();
    /// Ends the innermost table. For a table without a cell it also writes the end tag and
    /// decrements the depth, although no table was opened. That table then stays pending.
    void endTable();

    /// The number of open tables. It can fall below 0 (see `endTable`), which means the same as 0.
    [[nodiscard]] std::int32_t depth() const noexcept { return tableDepth_; }
    [[nodiscard]] bool hasOpenTable() const noexcept { return tableDepth_ > 0; }
    /// True from any `startTable` to the next `endTable`, even if an outer table is still open. The
    /// page's directory cannot change then.
    [[nodiscard]] bool inTable() const noexcept { return inTable_; }

    /// Call it when the cell gets text. A cell without text gets a filler at its end.
    void noteText() noexcept { cellHasText_ = true; }

private:
    static constexpr std::int32_t deepest = 5;

    void closeCell();
    /// The counter of the innermost table; null outside a table.
    [[nodiscard]] std::uint32_t* openCells() noexcept;

    OutputRouter& out_;
    FontWriter& font_;
    ParagraphStyle& style_;
    std::int32_t tableDepth_ = 0;
    std::uint32_t ignoredTables_ = 0;
    std::array<std::uint32_t, deepest> openCells_{};
    bool cellHasText_ = false;
    bool tablePending_ = false;
    bool rowPending_ = false;
    bool inTable_ = false;
};

}  // namespace quillmark
