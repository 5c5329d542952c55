#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "navigator/text/word_sink.h"

namespace quillmark {

/// Gives every distinct word a small number, in the order in which the words first come. Short
/// words lie in the table itself, so nearly every word of a page is found with one look. A word can
/// be marked, which tells the words of a page that have come before from those that have not.
class WordTable {
public:
    static constexpr std::size_t mostAtOnce = WordSink::mostAtOnce;
    using Id = std::uint32_t;
    /// No word has mark 0 when it is new.
    using Mark = std::uint32_t;

    WordTable();

    /// The number of the word, given to it now when it is new.
    Id add(std::string_view word);
    /// Adds words, at most `mostAtOnce`, and marks them. Writes the numbers of those that did not
    /// have the mark to the front of `ids`, which has as much room as there are words, and returns
    /// how many they are.
    std::size_t addUnmarked(std::span<const ShortWord> words, Mark mark, std::span<Id> ids);
    std::size_t addUnmarked(std::string_view word, Mark mark, std::span<Id> ids);
    /// The word of a number. The view is valid until the next word is added.
    [[nodiscard]] std::string_view word(Id id) const noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return ends_.size(); }
    /// The numbers in the order of the words' bytes.
    [[nodiscard]] std::vector<Id> ascending() const;

private:
    static constexpr Id none = 0xFFFFFFFF;
    struct Slot {
        ShortWord key;
        Id id = none;
        Mark mark = 0;
    };

    /// What lies where a word should.
    struct Look {
        Slot* slot;
        bool isHit;
    };

    [[nodiscard]] static ShortWord keyOfLong(std::string_view word) noexcept;
    [[nodiscard]] std::size_t homeOf(const ShortWord& key) const noexcept;
    template <typename IsWord>
    [[nodiscard]] Slot* find(const ShortWord& key, const IsWord& isWord) noexcept;
    /// These need room for one more word.
    [[nodiscard]] Slot& slotOf(const ShortWord& word);
    [[nodiscard]] Slot& slotOf(std::string_view word);
    Slot& insert(const ShortWord& key, std::string_view word);
    [[nodiscard]] Slot& freeSlot(const ShortWord& key) noexcept;
    static std::size_t setMark(Slot& slot, Mark mark, Id& id) noexcept;
    Id append(std::string_view word);
    void makeRoomFor(std::size_t words);
    void grow();

    /// The words, one after the other.
    std::string texts_;
    /// Where each word ends in `texts_`.
    std::vector<std::size_t> ends_;
    /// Their number is a power of two. At most three quarters are taken.
    std::vector<Slot> slots_;
    /// How many bits of a hash are not needed to choose a slot.
    unsigned unusedBits_;
};

}  // namespace quillmark
