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

TEST(NumberListText, emptyListIsEmpty) {
    EXPECT_EQ(textOf({}), "");
}

TEST(NumberListText, gapsAreInGroupsOfFiveBits) {
    EXPECT_EQ(textOf({0}), "A");
    EXPECT_EQ(textOf({31}), "f");
    EXPECT_EQ(textOf({32}), "hA");
    EXPECT_EQ(textOf({1000}), "_I");
    EXPECT_EQ(textOf({0, 1000}), "A_H");
}

TEST(NumberListText, largestNumbersFit) {
    EXPECT_EQ(textOf({0xFFFFFFFE}), "j_____e");
}

TEST(NumberListText, denseListsAreBits) {
    EXPECT_EQ(textOf({0, 1, 2, 3, 4, 5, 7}), "._C");
}

TEST(NumberListText, gapsWinWhenBothAreEquallyLong) {
    EXPECT_EQ(textOf({0, 1}), "AA");
}

TEST(NumberListText, appends) {
    std::string text = "x";
    number_list_text::append(text, std::vector<std::uint32_t>{2});
    EXPECT_EQ(text, "xC");
}

}  // namespace

}  // namespace quillmark
