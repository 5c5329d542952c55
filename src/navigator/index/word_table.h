#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "navigator/text/word_sink.h"

namespace quillmark {

/// Gives every distinct word a small number, in the order in which the words first come. Words are
/// kept and compared in blocks of eight bytes, and the first block of a word lies in the table
/// itself: nearly every word of a page is found with one look.
class WordTable {
public:
    using Id = std::uint32_t;

    WordTable();

    /// The number of the word, given to it now when it is new.
    Id add(const FoldedWord& word);
    /// The word of a number. The view is valid until the next `add`.
    [[nodiscard]] std::string_view word(Id id) const noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return ends_.size(); }

private:
    static constexpr Id none = 0xFFFFFFFF;
    struct Slot {
        std::uint64_t firstBlock = 0;
        std::uint32_t hash = 0;
        Id id = none;
    };

    [[nodiscard]] static std::uint32_t hashOf(const FoldedWord& word) noexcept;
    [[nodiscard]] bool hasRest(Id id, const FoldedWord& word) const noexcept;
    [[nodiscard]] std::size_t startOf(Id id) const noexcept { return id == 0 ? 0 : ends_[id - 1]; }
    Id append(const FoldedWord& word);
    void grow();

    /// The words in blocks, behind each other.
    std::vector<std::uint64_t> blocks_;
    /// Where each word ends in `blocks_`.
    std::vector<std::uint32_t> ends_;
    /// Their number is a power of two. At most three quarters are taken.
    std::vector<Slot> slots_;
};

}  // namespace quillmark
