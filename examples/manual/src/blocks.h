#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::manual {

enum class BlockKind { paragraph, heading, bullets, numbers, table, code, directive };

/// A piece of a description, as the data files write it:
///
///     a paragraph, one line of the file
///     ### a heading of level 3
///     - an item of a bulleted list          1. an item of a numbered one
///     | a row | of a table |                 the first row is the table's head
///         code, indented by four blanks
///     !name argument                         something that the generator makes itself
struct Block {
    BlockKind kind = BlockKind::paragraph;
    /// Level of a heading.
    int level = 0;
    /// The lines; a paragraph, a heading and a directive have one.
    std::vector<std::string> lines;
};

/// Cuts lines into blocks; blank lines only part them, but stay within code.
[[nodiscard]] std::vector<Block> parseBlocks(const std::vector<std::string>& lines);

/// The cells of a table's row, without the blanks around them.
[[nodiscard]] std::vector<std::string> tableCells(std::string_view row);

enum class SpanKind { text, code, bold, link };

/// A run of a line: plain, `code`, **bold** or a [link](target).
struct Span {
    SpanKind kind = SpanKind::text;
    std::string text;
    std::string target;
};

[[nodiscard]] std::vector<Span> parseSpans(std::string_view line);

}  // namespace quillmark::manual
