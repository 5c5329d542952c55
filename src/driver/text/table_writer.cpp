#include "driver/text/table_writer.h"

namespace quillmark {

namespace {

constexpr std::string_view tableStart = "<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2>";
constexpr std::string_view rowStart = "<TR>\n";  // rows are never closed
constexpr std::string_view cellStart = "<TD>";
constexpr std::string_view emptyCellFiller = "&nbsp;";
constexpr std::string_view cellEnd = "</TD>";
constexpr std::string_view tableEnd = "</TABLE>\n";

}  // namespace

void TableWriter::startTable() {
    if (tableDepth_ >= deepest) {
        ++ignoredTables_;
    } else {
        tablePending_ = true;
    }
    inTable_ = true;
}

void TableWriter::addRow() noexcept {
    if (ignoredTables_ == 0) {
        rowPending_ = true;
    }
}

void TableWriter::addCell() {
    if (ignoredTables_ != 0) {
        return;
    }
    if (tablePending_) {
        // The table counts as open even if there is no memory for its tag: `endTable` will come.
        tablePending_ = false;
        ++tableDepth_;
        if (std::uint32_t* const cells = openCells(); cells != nullptr) {
            *cells = 0;
        }
        out_.writeOut(tableStart);
    }
    if (rowPending_) {
        closeCell();
        out_.writeOut(rowStart);
        rowPending_ = false;
    }
    closeCell();
    out_.writeOut(cellStart);
    const DocHtmlTextState& state = out_.state();
    style_.openAlign(state.textAlign);
    style_.openStyle(state.styleName);
    if (state.fontOpen) {
        font_.openTags(font_.current());
    }
    if (std::uint32_t* const cells = openCells(); cells != nullptr) {
        ++*cells;
    }
    cellHasText_ = false;
}

void TableWriter::closeCell() {
    std::uint32_t* const cells = openCells();
    if (cells == nullptr || *cells == 0) {
        return;
    }
    const DocHtmlTextState& state = out_.state();
    if (state.fontOpen) {
        font_.closeTags(font_.current());
    }
    style_.closeStyle(state.styleName);
    style_.closeAlignTag();
    if (!cellHasText_) {
        out_.writeOut(emptyCellFiller);
    }
    out_.writeOut(cellEnd);
    --*cells;
}

void TableWriter::endTable() {
    inTable_ = false;
    if (ignoredTables_ != 0) {
        --ignoredTables_;
        return;
    }
    try {
        if (!tablePending_) {
            closeCell();
        }
        out_.writeOut(tableEnd);
    } catch (...) {
        --tableDepth_;
        throw;
    }
    --tableDepth_;
}

std::uint32_t* TableWriter::openCells() noexcept {
    if (tableDepth_ < 1 || tableDepth_ > deepest) {
        return nullptr;
    }
    return &openCells_[static_cast<std::size_t>(tableDepth_ - 1)];
}

}  // namespace quillmark
