#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace quillmark {

/// Which places (pages, or entries) hold which words. Both are numbers.
///
/// The words of a place are added together, each once. They are kept one after the other, four
/// bytes for each pair of word and place, and sorted by words when they are read: four bytes more.
class Postings {
public:
    class Sorted;

    /// The following words are at this place. Places may come in any order, and more than once.
    void startPlace(std::uint32_t place);
    /// Adds words, each at most once since `startPlace`.
    void add(std::span<const std::uint32_t> words) {
        words_.insert(words_.end(), words.begin(), words.end());
    }

    [[nodiscard]] Sorted sorted(std::size_t wordCount) const;
    [[nodiscard]] std::size_t pairs() const noexcept { return words_.size(); }
    void clear() noexcept;

private:
    struct Place {
        std::uint32_t number;
        /// Where its words begin.
        std::size_t start;
    };
    [[nodiscard]] std::size_t endOf(std::size_t place) const noexcept;
    [[nodiscard]] std::vector<std::size_t> ascendingPlaces() const;
    [[nodiscard]] std::vector<std::size_t> startsOfWords(std::size_t wordCount) const;
    template <typename Each>
    void forEachWordAt(std::size_t place, const Each& each) const;

    std::vector<Place> places_;
    /// A block at a time, so that growing copies nothing.
    std::deque<std::uint32_t> words_;
};

/// The places of each word, ascending, each once.
class Postings::Sorted {
public:
    [[nodiscard]] std::span<const std::uint32_t> of(std::uint32_t word) const noexcept {
        return std::span(places_).subspan(starts_[word], ends_[word] - starts_[word]);
    }

private:
    friend class Postings;
    std::vector<std::uint32_t> places_;
    std::vector<std::size_t> starts_;
    std::vector<std::size_t> ends_;
};

}  // namespace quillmark
