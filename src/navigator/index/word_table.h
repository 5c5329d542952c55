#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "navigator/text/word_sink.h"

namespace quillmark {

/// Gives every distinct word a small number, in the order in which the words first come. Words are
/// kept and compared in blocks of eight bytes, and the first two blocks of a word lie in the table
/// itself: nearly every word of a page is found with one look.
class WordTable {
public:
    using Id = std::uint32_t;

    WordTable();

    /// The number of the word, given to it now when it is new.
    Id add(const FoldedWord& word);
    /// Adds several words at once, at most `WordSink::mostAtOnce`. The looks into the table do not
    /// wait for each other, so this is faster than adding them one by one.
    void add(std::span<const FoldedWord> words, std::span<Id> ids);
    /// The word of a number. The view is valid until the next `add`.
    [[nodiscard]] std::string_view word(Id id) const noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return ends_.size(); }

private:
    static constexpr Id none = 0xFFFFFFFF;
    struct Slot {
        std::uint64_t firstBlock = 0;
        std::uint64_t secondBlock = 0;
        std::uint32_t hash = 0;
        Id id = none;
    };

    [[nodiscard]] static Slot slotOf(const FoldedWord& word) noexcept;
    [[nodiscard]] bool holds(const Slot& slot, const Slot& wanted,
                             const FoldedWord& word) const noexcept;
    [[nodiscard]] bool hasRest(Id id, const FoldedWord& word) const noexcept;
    Id add(Slot wanted, const FoldedWord& word);
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
