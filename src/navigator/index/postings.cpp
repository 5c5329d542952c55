#include "navigator/index/postings.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace quillmark {

void Postings::startPlace(std::uint32_t place) {
    places_.push_back({place, words_.size()});
}

std::size_t Postings::endOf(std::size_t place) const noexcept {
    return place + 1 < places_.size() ? places_[place + 1].start : words_.size();
}

std::vector<std::size_t> Postings::ascendingPlaces() const {
    std::vector<std::size_t> order(places_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [this](std::size_t at) { return places_[at].number; });
    return order;
}

std::vector<std::size_t> Postings::startsOfWords(std::size_t wordCount) const {
    std::vector<std::size_t> starts(wordCount);
    for (const std::uint32_t word : words_) {
        ++starts[word];
    }
    std::exclusive_scan(starts.begin(), starts.end(), starts.begin(), std::size_t{0});
    return starts;
}

template <typename Each>
void Postings::forEachWordAt(std::size_t place, const Each& each) const {
    const auto start = words_.begin() + static_cast<std::ptrdiff_t>(places_[place].start);
    const auto end = words_.begin() + static_cast<std::ptrdiff_t>(endOf(place));
    std::for_each(start, end, each);
}

Postings::Sorted Postings::sorted(std::size_t wordCount) const {
    Sorted sorted;
    sorted.starts_ = startsOfWords(wordCount);
    sorted.ends_ = sorted.starts_;
    sorted.places_.resize(words_.size());
    std::optional<std::uint32_t> last;
    for (const std::size_t place : ascendingPlaces()) {
        const std::uint32_t number = places_[place].number;
        // A place that was started twice has its words side by side here.
        const bool isAgain = number == last;
        last = number;
        forEachWordAt(place, [&](std::uint32_t word) {
            std::size_t& end = sorted.ends_[word];
            if (isAgain && end != sorted.starts_[word] && sorted.places_[end - 1] == number) {
                return;
            }
            sorted.places_[end++] = number;
        });
    }
    return sorted;
}

void Postings::clear() noexcept {
    places_.clear();
    words_.clear();
}

}  // namespace quillmark
