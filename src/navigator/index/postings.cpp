#include "navigator/index/postings.h"

#include <algorithm>
#include <numeric>

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

Postings::Sorted Postings::sorted(std::size_t wordCount) const {
    Sorted sorted;
    sorted.starts_.resize(wordCount);
    for (const std::uint32_t word : words_) {
        ++sorted.starts_[word];
    }
    std::exclusive_scan(sorted.starts_.begin(), sorted.starts_.end(), sorted.starts_.begin(),
                        std::size_t{0});
    sorted.ends_ = sorted.starts_;
    sorted.places_.resize(words_.size());
    for (const std::size_t place : ascendingPlaces()) {
        const std::uint32_t number = places_[place].number;
        for (std::size_t at = places_[place].start; at < endOf(place); ++at) {
            const std::uint32_t word = words_[at];
            std::size_t& end = sorted.ends_[word];
            // A place that was started twice has its words side by side here.
            if (end == sorted.starts_[word] || sorted.places_[end - 1] != number) {
                sorted.places_[end++] = number;
            }
        }
    }
    return sorted;
}

void Postings::clear() noexcept {
    places_.clear();
    words_.clear();
    lastStart_.clear();
}

}  // namespace quillmark
