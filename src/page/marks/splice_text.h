#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// A text that grows at its end and into which more text can be inserted at marks. The cost of an
/// insertion does not depend on the length of the text or the number of marks.
///
/// Appended text is kept apart from inserted text. Marks and inserted texts form one list, in
/// document order. All of it is merged once, when the text is read.
///
/// Several marks can have the same position. Text inserted at one of them goes before the marks
/// with a greater sequence number and after all others, including those with an equal number.
///
/// Lines are counted as for a page: an appended text with line feeds, however many and wherever
/// they are, ends one line. Inserted text never ends a line.
///
///     SpliceText text;
///     text.append("see ");
///     const auto mark = text.addMark("", 1);
///     text.append(" for more");
///     text.insertAt(mark, "page 2");
///     text.merged();                     // "see page 2 for more"
class SpliceText {
public:
    using MarkId = std::uint32_t;
    static constexpr MarkId none = 0xFFFFFFFF;

    /// Appends text.
    void append(std::string_view text);
    /// Adds a mark at the end. `markup` is kept with it, for `fill`.
    MarkId addMark(std::string_view markup, std::uint32_t sequence);
    /// Inserts text at an open mark, after what was inserted there since the last `rewind`.
    void insertAt(MarkId mark, std::string_view text);
    /// Makes the next insertion at the mark go before the text already inserted there.
    void rewind(MarkId mark) noexcept { nodes_[mark].lastText = none; }
    /// Removes an open mark. The text inserted there stays.
    void drop(MarkId mark);
    /// Inserts the mark's markup at the mark, before the text already inserted there, and removes
    /// the mark.
    void fill(MarkId mark);
    /// Does the same, but with `replacement` instead of `length` bytes of the markup from `start`
    /// on.
    void fill(MarkId mark, std::size_t start, std::size_t length,
              std::initializer_list<std::string_view> replacement);

    /// The number of lines. 0 until something is appended or marked.
    [[nodiscard]] std::int32_t lineCount() const noexcept { return lineCount_; }
    [[nodiscard]] std::string_view markup(MarkId mark) const noexcept;
    [[nodiscard]] std::uint32_t line(MarkId mark) const noexcept { return nodes_[mark].line; }
    [[nodiscard]] std::uint32_t sequence(MarkId mark) const noexcept {
        return nodes_[mark].sequence;
    }
    /// The current column of the mark in its line, counted from 1. Takes time in proportion to the
    /// number of nodes in the line.
    [[nodiscard]] std::uint32_t column(MarkId mark) const noexcept;

    /// True if no text was inserted, so that `plain` is the whole text.
    [[nodiscard]] bool isPlain() const noexcept { return insertedBytes_ == 0; }
    /// The appended text alone.
    [[nodiscard]] std::string_view plain() const noexcept { return base_; }
    /// The whole text, with the inserted texts in their places.
    [[nodiscard]] std::string merged() const;

    /// Reserves memory for that many more bytes of appended text.
    void reserve(std::size_t bytes) { base_.reserve(base_.size() + bytes); }
    /// Releases memory reserved for growth. For a text that is kept but does not grow any more.
    void compact();

private:
    /// An open mark or an inserted text.
    struct Node {
        std::size_t offset = 0;     // its position: before this byte of base_
        std::size_t poolStart = 0;  // in pool_: the mark's markup or the inserted text
        std::uint32_t poolLength = 0;
        std::uint32_t sequence = 0;  // of a mark
        std::uint32_t line = 0;
        std::uint32_t baseColumn = 0;  // bytes of base_ between the line's start and offset
        MarkId previous = none;
        MarkId next = none;
        MarkId lastText = none;  // of a mark: the last text inserted there
        bool isText = false;
    };

    MarkId newNode();
    void linkAfter(MarkId node, MarkId previous);
    void unlink(MarkId node);
    void moveAfterEqualMarks(MarkId mark);
    [[nodiscard]] std::string_view pooled(const Node& node) const noexcept {
        return std::string_view(pool_).substr(node.poolStart, node.poolLength);
    }

    std::string base_;
    std::size_t lineStart_ = 0;
    std::int32_t lineCount_ = 0;
    std::string pool_;
    std::vector<Node> nodes_;
    MarkId firstFree_ = none;  // in nodes_; `next` leads to the other free ones
    MarkId head_ = none;
    MarkId tail_ = none;
    std::size_t insertedBytes_ = 0;
};

}  // namespace quillmark
