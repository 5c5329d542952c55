#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// Text that grows at its end and can still be filled at marked places, however many there are,
/// each at the same small cost: nothing is moved when text is put in.
///
/// The text written at the end is kept apart from what is put in later. Marks and inserted texts
/// form one list in document order; the whole is merged once, when it is read.
///
/// Several marks can share a place. Text put in at one of them moves those with a greater
/// sequence number behind it and leaves the others, equal ones included, in front of it.
///
/// Lines are counted as the page counts them: a piece of text with a line feed anywhere in it
/// ends the line, once, behind the piece. Texts put in later end no line.
class SpliceText {
public:
    using MarkId = std::uint32_t;
    static constexpr MarkId none = 0xFFFFFFFF;

    /// Adds at the end.
    void append(std::string_view text);
    /// Marks the end. `markup` is kept with the mark until it is dropped.
    MarkId addMark(std::string_view markup, std::uint32_t sequence);
    /// Puts text in at an open mark, behind what was put in there since the last `rewind`.
    void insertAt(MarkId mark, std::string_view text);
    /// Goes back to the mark itself: what is put in next stands in front of what is there.
    void rewind(MarkId mark) noexcept { nodes_[mark].lastText = none; }
    /// Forgets an open mark; what was put in there stays.
    void drop(MarkId mark);
    /// Puts the mark's markup in at the mark, in front of what is there, and forgets the mark.
    void fill(MarkId mark);
    /// The same with another text in the place of `length` bytes of the markup from `start`.
    void fill(MarkId mark, std::size_t start, std::size_t length,
              std::initializer_list<std::string_view> replacement);

    /// Lines in use; 0 while nothing was ever written or marked.
    [[nodiscard]] std::int32_t lineCount() const noexcept { return lineCount_; }
    [[nodiscard]] std::string_view markup(MarkId mark) const noexcept;
    [[nodiscard]] std::uint32_t line(MarkId mark) const noexcept { return nodes_[mark].line; }
    [[nodiscard]] std::uint32_t sequence(MarkId mark) const noexcept {
        return nodes_[mark].sequence;
    }
    /// Column of the mark in its line as it stands now, counted from 1. Walks the list.
    [[nodiscard]] std::uint32_t column(MarkId mark) const noexcept;

    /// True when nothing was put in, so that `plain` is the whole text.
    [[nodiscard]] bool isPlain() const noexcept { return insertedBytes_ == 0; }
    [[nodiscard]] std::string_view plain() const noexcept { return base_; }
    /// The whole text in order.
    [[nodiscard]] std::string merged() const;

    /// Makes room for that many bytes more at the end, for who knows how much is coming.
    void reserve(std::size_t bytes) { base_.reserve(base_.size() + bytes); }
    /// Gives back memory held for growth; for a text that is kept but grows no more.
    void compact();

private:
    /// An open mark, or a text that was put in.
    struct Node {
        std::size_t offset = 0;     // in base_: it stands in front of the byte there
        std::size_t poolStart = 0;  // in pool_: the mark's markup or the inserted text
        std::uint32_t poolLength = 0;
        std::uint32_t sequence = 0;  // of a mark
        std::uint32_t line = 0;
        std::uint32_t baseColumn = 0;  // bytes of base_ between the line's start and offset
        MarkId previous = none;
        MarkId next = none;
        MarkId lastText = none;  // of a mark: the text put in there last
        bool isText = false;
    };

    MarkId newNode();
    void linkBehind(MarkId node, MarkId previous);
    void unlink(MarkId node);
    void moveBehindEquals(MarkId mark);
    [[nodiscard]] std::string_view pooled(const Node& node) const noexcept {
        return std::string_view(pool_).substr(node.poolStart, node.poolLength);
    }

    std::string base_;
    std::size_t lineStart_ = 0;
    std::int32_t lineCount_ = 0;
    std::string pool_;
    std::vector<Node> nodes_;
    MarkId firstFree_ = none;  // in nodes_; the others behind it by `next`
    MarkId head_ = none;
    MarkId tail_ = none;
    std::size_t insertedBytes_ = 0;
};

}  // namespace quillmark
