#pragma once

#include <array>
#include <cstdint>

#include "driver/pages/output_router.h"
#include "driver/text/font_writer.h"
#include "driver/text/paragraph_style.h"

namespace quillmark {

/// Tables, up to five deep. The host never says where a cell or a row ends, so tags are written
/// lazily: starting a table or a row only marks it pending, and the next cell writes them.
///
/// Every cell is self-contained: font, style and alignment in force are closed at its end and
/// opened again in the next one.
class TableWriter {
public:
    TableWriter(OutputRouter& out, FontWriter& font, ParagraphStyle& style) noexcept
        : out_(out), font_(font), style_(style) {}

    /// Beyond five levels a table is flattened into the cell that it stands in.
    void startTable();
    void addRow() noexcept;
    void addCell();
    /// Ends the innermost table. A table that never got a cell is ended all the same: its end tag
    /// is written, the depth falls one below the tables really open, and the table stays pending.
    void endTable();

    /// Tables whose start is written and whose end is not. It can fall below 0 (see `endTable`),
    /// which is outside a table like 0.
    [[nodiscard]] std::int32_t depth() const noexcept { return tableDepth_; }
    [[nodiscard]] bool hasOpenTable() const noexcept { return tableDepth_ > 0; }
    /// Between a start and the next end, of whatever table; directories do not change meanwhile.
    [[nodiscard]] bool inTable() const noexcept { return inTable_; }

    /// Text came: a cell that got any is not filled when it ends.
    void noteText() noexcept { cellHasText_ = true; }

private:
    static constexpr std::int32_t deepest = 5;

    void closeCell();
    /// The counter of the innermost table; null outside any table, where there is none.
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
