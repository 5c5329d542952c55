#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "blocks.h"
#include "call_stream.h"

namespace quillmark::manual {

/// Turns blocks of description into document calls.
class Composer {
public:
    /// Makes what a directive, the line behind "!", asks for.
    using Directive = std::function<void(const std::string& directive)>;

    Composer(CallStream& calls, Directive directive)
        : calls_(calls), directive_(std::move(directive)) {}

    /// The operation whose own name is not to become a link.
    void setCurrent(const std::string& operation) { current_ = operation; }

    /// A heading that stands in the contents, with its bookmark and a locate button behind it.
    void entryHeading(int level, const std::string& text, const std::string& tag);
    /// A heading that the contents leave out.
    void plainHeading(int level, const std::string& text);
    /// Blocks one after the other; their headings stand in the contents.
    void blocks(const std::vector<Block>& blocks);

    /// A text with its code, links and bold runs, without a line end.
    void line(const std::string& text);
    /// A line that is followed by an empty one.
    void paragraph(const std::string& text);
    void codeBlock(const std::vector<std::string>& lines);
    /// A table whose first row is its head.
    void table(const std::vector<std::vector<std::string>>& rows);
    void startTable(const std::vector<std::string>& head);
    void row(const std::vector<std::string>& cells);
    void list(const std::string& style, const std::vector<std::string>& items);
    /// A frame around what is written until it is closed.
    void openFrame();
    void closeFrame();

private:
    void block(const Block& block, const Block* next);
    void tableBlock(const Block& block);

    CallStream& calls_;
    Directive directive_;
    std::string current_;
    /// The first text of a list leaves a contents anchor open. A heading behind it would be
    /// listed with that anchor, so such a heading asks for one of its own.
    bool anchorLeftOpen_ = false;
};

}  // namespace quillmark::manual
