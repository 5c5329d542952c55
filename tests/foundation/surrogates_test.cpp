#include "foundation/surrogates.h"

#include <gtest/gtest.h>

namespace quillmark::surrogates {
namespace {

TEST(Surrogates, AreHighOrLow) {
    EXPECT_FALSE(isHigh(0xD7FF));
    EXPECT_TRUE(isHigh(0xD800));
    EXPECT_TRUE(isHigh(0xDBFF));
    EXPECT_FALSE(isHigh(0xDC00));
    EXPECT_FALSE(isLow(0xDBFF));
    EXPECT_TRUE(isLow(0xDC00));
    EXPECT_TRUE(isLow(0xDFFF));
    EXPECT_FALSE(isLow(0xE000));
}

TEST(Surrogates, MakeOneCharacterAsAPairOnly) {
    EXPECT_EQ(firstLength(u"\U0001F600"), 2U);
    EXPECT_EQ(firstLength(u"\U0001F600x"), 2U);
    EXPECT_EQ(firstLength(u"xy"), 1U);
    EXPECT_EQ(firstLength(u"\xD83D"), 1U);
    EXPECT_EQ(firstLength(u"\xD83Dx"), 1U);
    EXPECT_EQ(firstLength(u"\xDE00\xD83D"), 1U);
}

}  // namespace
}  // namespace quillmark::surrogates
