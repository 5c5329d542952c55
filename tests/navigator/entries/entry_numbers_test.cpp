#include "navigator/entries/entry_numbers.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace quillmark {

namespace {

ContentsEntryList entriesOf(std::initializer_list<std::int32_t> levels) {
    ContentsEntryList entries;
    for (const std::int32_t level : levels) {
        entries.add({.href = "rep_dtl.htm#toc1", .text = "x", .level = level});
    }
    return entries;
}

std::vector<std::uint32_t> numbersOf(std::initializer_list<std::int32_t> levels) {
    const EntryNumbers numbers(entriesOf(levels));
    std::vector<std::uint32_t> found;
    for (std::size_t index = 0; index < levels.size(); ++index) {
        found.push_back(numbers.numberOf(index));
    }
    return found;
}

TEST(EntryNumbers, CountLevelByLevel) {
    EXPECT_EQ(numbersOf({1, 2, 3, 2, 1, 2}), (std::vector<std::uint32_t>{0, 2, 5, 3, 1, 4}));
}

TEST(EntryNumbers, ChildrenOfAnEntryAreConsecutive) {
    const EntryNumbers numbers(entriesOf({1, 2, 3, 2, 1, 2}));
    EXPECT_EQ(numbers.nodes()[0].firstChild, 2U);
    EXPECT_EQ(numbers.nodes()[0].children, 2U);
    EXPECT_EQ(numbers.nodes()[1].firstChild, 4U);
    EXPECT_EQ(numbers.nodes()[1].children, 1U);
    EXPECT_EQ(numbers.nodes()[5].parent, 2U);
    EXPECT_EQ(numbers.nodes()[0].parent, EntryNumbers::none);
}

TEST(EntryNumbers, LevelsArePutRight) {
    const EntryNumbers numbers(entriesOf({5, 5, -3, 0, 99}));
    std::vector<std::uint32_t> levels;
    for (std::size_t index = 0; index < 5; ++index) {
        levels.push_back(numbers.levelOf(index));
    }
    EXPECT_EQ(levels, (std::vector<std::uint32_t>{1, 2, 1, 1, 2}));
}

TEST(EntryNumbers, LevelsEndAtTheDeepest) {
    ContentsEntryList entries;
    for (std::int32_t level = 1; level <= 40; ++level) {
        entries.add({.href = "h", .text = "x", .level = level});
    }
    const EntryNumbers numbers(entries);
    EXPECT_EQ(numbers.levelOf(39), EntryNumbers::deepestLevel);
    EXPECT_EQ(numbers.nodes()[39].parent, 30U);
}

TEST(EntryNumbers, NoEntriesHaveNoNumbers) {
    EXPECT_TRUE(EntryNumbers(ContentsEntryList()).nodes().empty());
}

}  // namespace

}  // namespace quillmark
