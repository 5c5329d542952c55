#include "page/marks/splice_text.h"

#include <utility>

namespace quillmark {

void SpliceText::append(std::string_view text) {
    base_.append(text);
    if (lineCount_ == 0) {
        lineCount_ = 1;
    }
    if (text.find('\n') != std::string_view::npos) {
        ++lineCount_;
        lineStart_ = base_.size();
    }
}

SpliceText::MarkId SpliceText::addMark(std::string_view markup, std::uint32_t sequence) {
    const std::size_t poolStart = pool_.size();
    // If there is no memory for the node, these bytes stay behind and do no harm.
    pool_.append(markup);
    const MarkId mark = newNode();
    if (lineCount_ == 0) {
        lineCount_ = 1;
    }
    Node& node = nodes_[mark];
    node.offset = base_.size();
    node.poolStart = poolStart;
    node.poolLength = static_cast<std::uint32_t>(markup.size());
    node.sequence = sequence;
    node.line = static_cast<std::uint32_t>(lineCount_);
    node.baseColumn = static_cast<std::uint32_t>(base_.size() - lineStart_);
    // A later mark may have a smaller sequence number, because it counts the open marks.
    MarkId previous = tail_;
    while (previous != none && !nodes_[previous].isText && nodes_[previous].offset == node.offset &&
           nodes_[previous].sequence > sequence) {
        previous = nodes_[previous].previous;
    }
    linkAfter(mark, previous);
    return mark;
}

void SpliceText::insertAt(MarkId mark, std::string_view text) {
    if (text.empty()) {
        return;
    }
    const MarkId last = nodes_[mark].lastText;
    const std::size_t poolStart = pool_.size();
    pool_.append(text);
    if (last != none && nodes_[last].poolStart + nodes_[last].poolLength == poolStart) {
        nodes_[last].poolLength += static_cast<std::uint32_t>(text.size());
        insertedBytes_ += text.size();
        return;
    }
    const MarkId inserted = newNode();
    insertedBytes_ += text.size();
    if (last == none) {
        moveAfterEqualMarks(mark);
    }
    Node& node = nodes_[inserted];
    const Node& place = nodes_[mark];
    node.isText = true;
    node.offset = place.offset;
    node.line = place.line;
    node.baseColumn = place.baseColumn;
    node.poolStart = poolStart;
    node.poolLength = static_cast<std::uint32_t>(text.size());
    linkAfter(inserted, last == none ? mark : last);
    nodes_[mark].lastText = inserted;
}

void SpliceText::drop(MarkId mark) {
    unlink(mark);
    nodes_[mark].next = firstFree_;
    firstFree_ = mark;
}

// The node of the mark becomes the node of the text. Thus hundreds of thousands of marks, filled in
// any order, are still in memory in the order in which they are read.
void SpliceText::fill(MarkId mark) {
    if (nodes_[mark].poolLength == 0) {
        drop(mark);
        return;
    }
    moveAfterEqualMarks(mark);
    nodes_[mark].isText = true;
    insertedBytes_ += nodes_[mark].poolLength;
}

void SpliceText::fill(MarkId mark, std::size_t start, std::size_t length,
                      std::initializer_list<std::string_view> replacement) {
    Node& node = nodes_[mark];
    const std::size_t filled = pool_.size();
    pool_.append(pool_, node.poolStart, start);
    for (const std::string_view text : replacement) {
        pool_.append(text);
    }
    pool_.append(pool_, node.poolStart + start + length, node.poolLength - start - length);
    node.poolStart = filled;
    node.poolLength = static_cast<std::uint32_t>(pool_.size() - filled);
    fill(mark);
}

std::string_view SpliceText::markup(MarkId mark) const noexcept {
    return pooled(nodes_[mark]);
}

std::uint32_t SpliceText::column(MarkId mark) const noexcept {
    std::uint32_t column = nodes_[mark].baseColumn + 1;
    for (MarkId at = nodes_[mark].previous; at != none && nodes_[at].line == nodes_[mark].line;
         at = nodes_[at].previous) {
        column += nodes_[at].isText ? nodes_[at].poolLength : 0;
    }
    return column;
}

std::string SpliceText::merged() const {
    std::string text;
    text.reserve(base_.size() + insertedBytes_);
    std::size_t copied = 0;
    for (MarkId at = head_; at != none; at = nodes_[at].next) {
        if (nodes_[at].isText) {
            text.append(base_, copied, nodes_[at].offset - copied).append(pooled(nodes_[at]));
            copied = nodes_[at].offset;
        }
    }
    return text.append(base_, copied);
}

void SpliceText::compact() {
    base_.shrink_to_fit();
    pool_.shrink_to_fit();
    nodes_.shrink_to_fit();
}

SpliceText::MarkId SpliceText::newNode() {
    if (firstFree_ != none) {
        const MarkId reused = firstFree_;
        firstFree_ = std::exchange(nodes_[reused], {}).next;
        return reused;
    }
    nodes_.emplace_back();
    return static_cast<MarkId>(nodes_.size() - 1);
}

void SpliceText::linkAfter(MarkId node, MarkId previous) {
    const MarkId next = previous == none ? head_ : nodes_[previous].next;
    nodes_[node].previous = previous;
    nodes_[node].next = next;
    (previous == none ? head_ : nodes_[previous].next) = node;
    (next == none ? tail_ : nodes_[next].previous) = node;
}

void SpliceText::unlink(MarkId node) {
    const MarkId previous = nodes_[node].previous;
    const MarkId next = nodes_[node].next;
    (previous == none ? head_ : nodes_[previous].next) = next;
    (next == none ? tail_ : nodes_[next].previous) = previous;
}

void SpliceText::moveAfterEqualMarks(MarkId mark) {
    const Node& moved = nodes_[mark];
    MarkId target = mark;
    for (MarkId at = moved.next;
         at != none && !nodes_[at].isText && nodes_[at].offset == moved.offset &&
         nodes_[at].sequence <= moved.sequence;
         at = nodes_[at].next) {
        target = at;
    }
    if (target != mark) {
        unlink(mark);
        linkAfter(mark, target);
    }
}

}  // namespace quillmark
