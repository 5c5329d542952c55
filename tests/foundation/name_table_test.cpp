#include "foundation/name_table.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmark {
namespace {

TEST(PackedStrings, KeepTextsInTheirOrder) {
    PackedStrings texts;
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(texts.add("one"), 0U);
    EXPECT_EQ(texts.add(""), 1U);
    EXPECT_EQ(texts.add(std::string_view("t\0o", 3)), 2U);
    EXPECT_EQ(texts.add(""), 3U);
    EXPECT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0], "one");
    EXPECT_EQ(texts[1], "");
    EXPECT_EQ(texts[2], std::string_view("t\0o", 3));
    EXPECT_EQ(texts[3], "");
}

TEST(PackedStrings, BeginAgainOnceCleared) {
    PackedStrings texts;
    texts.add("one");
    texts.clear();
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(texts.add("two"), 0U);
    EXPECT_EQ(texts[0], "two");
}

TEST(NameTable, KnowsNoNameAtFirst) {
    const NameTable index;
    EXPECT_EQ(index.size(), 0U);
    EXPECT_EQ(index.find("a"), NameTable::none);
    EXPECT_EQ(index.find(""), NameTable::none);
}

TEST(NameTable, NumbersNamesInTheOrderOfTheirFirstUse) {
    NameTable index;
    EXPECT_EQ(index.add("b"), 0U);
    EXPECT_EQ(index.add("a"), 1U);
    EXPECT_EQ(index.add("b"), 0U);
    EXPECT_EQ(index.add(""), 2U);
    EXPECT_EQ(index.size(), 3U);
    EXPECT_EQ(index.find("a"), 1U);
    EXPECT_EQ(index.find(""), 2U);
    EXPECT_EQ(index.name(0), "b");
    EXPECT_EQ(index.name(2), "");
}

TEST(NameTable, DistinguishesNamesByEveryByte) {
    NameTable index;
    EXPECT_EQ(index.add("name"), 0U);
    EXPECT_EQ(index.add("Name"), 1U);
    EXPECT_EQ(index.add("name "), 2U);
    EXPECT_EQ(index.add(std::string_view("name\0", 5)), 3U);
    EXPECT_EQ(index.find("nam"), NameTable::none);
}

TEST(NameTable, FindsEveryNameOfAHundredThousand) {
    NameTable index;
    for (NameTable::Id i = 0; i < 100000; ++i) {
        ASSERT_EQ(index.add("name " + std::to_string(i)), i);
    }
    for (NameTable::Id i = 0; i < 100000; ++i) {
        ASSERT_EQ(index.find("name " + std::to_string(i)), i);
        ASSERT_EQ(index.name(i), "name " + std::to_string(i));
    }
    EXPECT_EQ(index.find("name 100000"), NameTable::none);
}

}  // namespace
}  // namespace quillmark
