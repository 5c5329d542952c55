#include "page/links/link_attribute.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(LinkAttribute, ReplacesTheFirstOccurrenceOfTheName) {
    const auto place = LinkAttribute::placeIn("<A GUID-1>", "GUID-1");
    EXPECT_TRUE(place.isFound());
    EXPECT_EQ(place.start, 3U);
    EXPECT_EQ(place.length, 6U);
    EXPECT_EQ(LinkAttribute::placeIn("<A x x>", "x").start, 3U);
}

TEST(LinkAttribute, MayReplaceLettersOfTheTagItself) {
    const auto place = LinkAttribute::placeIn("<A A>", "A");
    EXPECT_EQ(place.start, 1U);
    EXPECT_EQ(place.length, 1U);
}

TEST(LinkAttribute, ReplacesAnEmptyMarkupAsAWhole) {
    const auto place = LinkAttribute::placeIn("", "GUID-1");
    EXPECT_TRUE(place.isFound());
    EXPECT_EQ(place.start, 0U);
    EXPECT_EQ(place.length, 0U);
}

TEST(LinkAttribute, HasNoPlaceInTheEndOfALink) {
    EXPECT_FALSE(LinkAttribute::placeIn("</A>", "GUID-1").isFound());
    EXPECT_FALSE(LinkAttribute::placeIn("</A>", "a").isFound());
}

}  // namespace
}  // namespace quillmark
