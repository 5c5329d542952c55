#include "navigator/data/number_list_text.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace quillmark {

namespace {

std::string textOf(const std::vector<std::uint32_t>& numbers) {
    std::string text;
    number_list_text::append(text, numbers);
    return text;
}

TEST(NumberListText, EmptyListIsEmpty) {
    EXPECT_EQ(textOf({}), "");
}

TEST(NumberListText, GapsAreInGroupsOfFiveBits) {
    EXPECT_EQ(textOf({0}), "A");
    EXPECT_EQ(textOf({31}), "f");
    EXPECT_EQ(textOf({32}), "hA");
    EXPECT_EQ(textOf({1000}), "_I");
    EXPECT_EQ(textOf({1023}), "_f");
    EXPECT_EQ(textOf({1024}), "hgA");
    EXPECT_EQ(textOf({32767}), "__f");
    EXPECT_EQ(textOf({32768}), "hggA");
    EXPECT_EQ(textOf({0, 1000}), "A_H");
}

TEST(NumberListText, LargestNumbersFit) {
    EXPECT_EQ(textOf({0xFFFFFFFE}), "j_____e");
}

TEST(NumberListText, LongListsHaveAllTheirGaps) {
    std::vector<std::uint32_t> numbers;
    std::string expected;
    for (std::uint32_t i = 0; i < 1000; ++i) {
        numbers.push_back(i * 40);
        expected += i == 0 ? "A" : "hH";
    }
    EXPECT_EQ(textOf(numbers), expected);
}

TEST(NumberListText, DenseListsAreBits) {
    EXPECT_EQ(textOf({0, 1, 2, 3, 4, 5, 7}), "._C");
}

TEST(NumberListText, GapsWinWhenBothAreEquallyLong) {
    EXPECT_EQ(textOf({0, 1}), "AA");
}

TEST(NumberListText, Appends) {
    std::string text = "x";
    number_list_text::append(text, std::vector<std::uint32_t>{2});
    EXPECT_EQ(text, "xC");
}

}  // namespace

}  // namespace quillmark
