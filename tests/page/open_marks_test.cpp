#include "page/marks/open_marks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmark {
namespace {

using MarkIds = std::vector<OpenMarks::MarkId>;

MarkIds taken(OpenMarks& table, std::string_view name) {
    MarkIds marks;
    table.take(name, [&](OpenMarks::MarkId mark) { marks.push_back(mark); });
    return marks;
}

std::string listed(const OpenMarks& table) {
    std::string all;
    table.forEach([&](std::string_view name, OpenMarks::MarkId mark) {
        all.append(name).append("=").append(std::to_string(mark)).append(" ");
    });
    return all;
}

TEST(OpenMarks, IsEmptyAtFirst) {
    OpenMarks table;
    EXPECT_EQ(table.size(), 0U);
    EXPECT_EQ(table.first("a"), SpliceText::none);
    EXPECT_EQ(taken(table, "a"), MarkIds{});
    EXPECT_EQ(listed(table), "");
}

TEST(OpenMarks, ReturnsTheMarksOfANameInTheOrderOfTheirCreation) {
    OpenMarks table;
    table.add("a", 5);
    table.add("b", 4);
    table.add("a", 3);
    table.add("a", 9);
    EXPECT_EQ(table.size(), 4U);
    EXPECT_EQ(table.first("a"), 5U);
    EXPECT_EQ(taken(table, "a"), (MarkIds{5, 3, 9}));
    EXPECT_EQ(table.size(), 1U);
    EXPECT_EQ(table.first("a"), SpliceText::none);
    EXPECT_EQ(taken(table, "a"), MarkIds{});
}

TEST(OpenMarks, FindsANameByItsIdAndIgnoresAWrongOne) {
    OpenMarks table;
    const auto a = table.add("a", 1);
    const auto b = table.add("b", 2);
    EXPECT_EQ(table.add("a", 3, a), a);
    EXPECT_EQ(table.add("a", 4, b), a);
    EXPECT_EQ(table.add("a", 5, 77), a);
    EXPECT_EQ(listed(table), "a=1 a=3 a=4 a=5 b=2 ");
    MarkIds marks;
    const auto keep = [&](OpenMarks::MarkId mark) { marks.push_back(mark); };
    table.take("a", keep, a);
    table.take("b", keep, a);
    table.take("c", keep, a);
    EXPECT_EQ(marks, (MarkIds{1, 3, 4, 5, 2}));
    // A new table ignores the ids of the old one.
    table = OpenMarks();
    table.add("c", 6, a);
    table.take("a", keep, a);
    EXPECT_EQ(listed(table), "c=6 ");
}

TEST(OpenMarks, ListsNamesInTheOrderOfTheirBytes) {
    OpenMarks table;
    table.add("b", 1);
    table.add("\xe4", 2);
    table.add("B", 3);
    table.add("", 4);
    table.add("b", 5);
    table.add("ba", 6);
    EXPECT_EQ(listed(table), "=4 B=3 b=1 b=5 ba=6 \xe4=2 ");
}

TEST(OpenMarks, ReusesAName) {
    OpenMarks table;
    table.add("a", 1);
    table.add("b", 2);
    static_cast<void>(taken(table, "a"));
    table.add("b", 3);
    table.add("a", 4);
    EXPECT_EQ(listed(table), "a=4 b=2 b=3 ");
}

TEST(OpenMarks, CountsWhileMarksAreTaken) {
    OpenMarks table;
    table.add("a", 1);
    table.add("a", 2);
    std::vector<std::size_t> sizes;
    table.take("a", [&](OpenMarks::MarkId) { sizes.push_back(table.size()); });
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 0}));
}

TEST(OpenMarks, KeepsTenThousandNamesApart) {
    OpenMarks table;
    for (OpenMarks::MarkId i = 0; i < 10000; ++i) {
        table.add(std::to_string(i), i);
        table.add(std::to_string(i), i + 10000);
    }
    for (OpenMarks::MarkId i = 0; i < 10000; ++i) {
        ASSERT_EQ(taken(table, std::to_string(i)), (MarkIds{i, i + 10000}));
    }
    EXPECT_EQ(table.size(), 0U);
}

}  // namespace
}  // namespace quillmark
