#include "navigator/index/postings.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmark {

namespace {

std::vector<std::uint32_t> placesOf(const Postings::Sorted& sorted, std::uint32_t word) {
    const auto places = sorted.of(word);
    return {places.begin(), places.end()};
}

using Places = std::vector<std::uint32_t>;

TEST(Postings, placesOfAWordAscend) {
    Postings postings;
    postings.startPlace(7);
    postings.add(0);
    postings.add(1);
    postings.startPlace(3);
    postings.add(1);
    const Postings::Sorted sorted = postings.sorted(2);
    EXPECT_EQ(placesOf(sorted, 0), (Places{7}));
    EXPECT_EQ(placesOf(sorted, 1), (Places{3, 7}));
}

TEST(Postings, placesCountOnce) {
    Postings postings;
    for (const std::uint32_t place : {5U, 2U, 5U}) {
        postings.startPlace(place);
        postings.add(0);
        postings.add(0);
    }
    EXPECT_EQ(postings.pairs(), 3U);
    EXPECT_EQ(placesOf(postings.sorted(1), 0), (Places{2, 5}));
}

TEST(Postings, wordsWithoutPlacesHaveEmptyLists) {
    EXPECT_EQ(placesOf(Postings().sorted(3), 2), Places{});
}

TEST(Postings, forgetsAll) {
    Postings postings;
    postings.startPlace(1);
    postings.add(4);
    postings.clear();
    EXPECT_EQ(postings.pairs(), 0U);
    EXPECT_EQ(placesOf(postings.sorted(5), 4), Places{});
}

}  // namespace

}  // namespace quillmark
