#include "composer.h"

#include "text_markup.h"

namespace quillmark::manual {

namespace {

constexpr int boldAttribute = 1;
/// Deepest heading that becomes a contents entry by itself, as the manual's settings have it.
constexpr int deepestAutomaticHeading = 2;

}  // namespace

void Composer::entryHeading(int level, const std::string& text, const std::string& tag) {
    const bool explicitEntry = anchorLeftOpen_ || level > deepestAutomaticHeading;
    calls_.add("setStyle", "Heading " + std::to_string(level));
    if (!tag.empty()) {
        calls_.add("insertTag", tag);
    }
    if (explicitEntry) {
        calls_.add("startTOCEntry");
    }
    calls_.add("insertText", shown(text));
    if (explicitEntry) {
        calls_.add("endTOCEntry");
    }
    calls_.add("setStyle", "Normal");
    anchorLeftOpen_ = false;
}

void Composer::plainHeading(int level, const std::string& text) {
    calls_.add("setStyle", "Heading " + std::to_string(level));
    calls_.add("insertText", shown(text));
    calls_.add("setStyle", "Normal");
}

void Composer::line(const std::string& text) {
    std::string pending;
    const auto flush = [&] {
        if (!pending.empty()) {
            calls_.add("insertText", pending);
            pending.clear();
        }
    };
    for (const Span& span : parseSpans(text)) {
        if (span.kind == SpanKind::bold) {
            flush();
            calls_.add("setFontAttribute", boldAttribute, true);
            calls_.add("insertText", spanMarkup(span, current_));
            calls_.add("setFontAttribute", boldAttribute, false);
        } else {
            pending += spanMarkup(span, current_);
        }
    }
    flush();
}

void Composer::paragraph(const std::string& text) {
    line(text);
    calls_.add("insertEndl");
    calls_.add("insertEndl");
}

void Composer::openFrame() {
    calls_.add("insertText", "<DIV CLASS=CODE>");
}
void Composer::closeFrame() {
    calls_.add("insertText", "</DIV>");
}

void Composer::codeBlock(const std::vector<std::string>& lines) {
    openFrame();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            calls_.add("insertEndl");
        }
        calls_.add("insertText", shown(lines[i]));
    }
    closeFrame();
}

void Composer::startTable(const std::vector<std::string>& head) {
    calls_.add("startTable");
    calls_.add("addRow");
    for (std::size_t i = 0; i < head.size(); ++i) {
        calls_.add("addCell");
        if (i == 0) {
            calls_.add("setFontAttribute", boldAttribute, true);
        }
        line(head[i]);
    }
    calls_.add("setFontAttribute", boldAttribute, false);
}

void Composer::row(const std::vector<std::string>& cells) {
    calls_.add("addRow");
    for (const std::string& cell : cells) {
        calls_.add("addCell");
        line(cell);
    }
}

void Composer::table(const std::vector<std::vector<std::string>>& rows) {
    startTable(rows.front());
    for (std::size_t i = 1; i < rows.size(); ++i) {
        row(rows[i]);
    }
    calls_.add("endTable");
}

void Composer::list(const std::string& style, const std::vector<std::string>& items) {
    calls_.add("setStyle", style);
    for (const std::string& item : items) {
        line(item);
        calls_.add("insertEndl");
    }
    calls_.add("setStyle", "Normal");
    anchorLeftOpen_ = true;
}

void Composer::tableBlock(const Block& block) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : block.lines) {
        rows.push_back(tableCells(line));
    }
    table(rows);
}

void Composer::block(const Block& block, const Block* next) {
    switch (block.kind) {
        case BlockKind::paragraph:
            line(block.lines.front());
            calls_.add("insertEndl");
            // Other blocks keep a distance of their own.
            if (next != nullptr && next->kind == BlockKind::paragraph) {
                calls_.add("insertEndl");
            }
            break;
        case BlockKind::heading:
            entryHeading(block.level, block.lines.front(), {});
            break;
        case BlockKind::bullets:
            list("List Bullet", block.lines);
            break;
        case BlockKind::numbers:
            list("List Number", block.lines);
            break;
        case BlockKind::table:
            tableBlock(block);
            break;
        case BlockKind::code:
            codeBlock(block.lines);
            break;
        case BlockKind::directive:
            directive_(block.lines.front());
            break;
    }
}

void Composer::blocks(const std::vector<Block>& blocks) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        block(blocks[i], i + 1 < blocks.size() ? &blocks[i + 1] : nullptr);
    }
}

}  // namespace quillmark::manual
