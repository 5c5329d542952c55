#include "navigator/index/postings.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmark {

namespace {

std::vector<std::uint32_t> placesOf(const Postings::Sorted& sorted, std::uint32_t word) {
    const auto places = sorted.of(word);
    return {places.begin(), places.end()};
}

void add(Postings& postings, std::vector<std::uint32_t> words) {
    postings.add(words);
}

using Places = std::vector<std::uint32_t>;

TEST(Postings, PlacesOfAWordAscend) {
    Postings postings;
    postings.startPlace(7);
    add(postings, {0, 1});
    postings.startPlace(3);
    add(postings, {1});
    const Postings::Sorted sorted = postings.sorted(2);
    EXPECT_EQ(placesOf(sorted, 0), (Places{7}));
    EXPECT_EQ(placesOf(sorted, 1), (Places{3, 7}));
}

TEST(Postings, PlacesCountOnce) {
    Postings postings;
    for (const std::uint32_t place : {5U, 2U, 5U}) {
        postings.startPlace(place);
        add(postings, {0});
    }
    EXPECT_EQ(postings.pairs(), 3U);
    EXPECT_EQ(placesOf(postings.sorted(1), 0), (Places{2, 5}));
}

TEST(Postings, WordsWithoutPlacesHaveEmptyLists) {
    EXPECT_EQ(placesOf(Postings().sorted(3), 2), Places{});
}

TEST(Postings, ForgetsAll) {
    Postings postings;
    postings.startPlace(1);
    add(postings, {4});
    postings.clear();
    EXPECT_EQ(postings.pairs(), 0U);
    EXPECT_EQ(placesOf(postings.sorted(5), 4), Places{});
}

}  // namespace

}  // namespace quillmark
