#include "navigator/index/word_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace quillmark {

namespace {

using Ids = std::vector<WordTable::Id>;

Ids addUnmarked(WordTable& table, const std::vector<std::string>& words, WordTable::Mark mark) {
    std::vector<ShortWord> shortWords;
    for (const std::string& word : words) {
        shortWords.push_back(ShortWord::of(word));
    }
    Ids ids(words.size());
    ids.resize(table.addUnmarked(shortWords, mark, ids));
    return ids;
}

TEST(WordTable, NumbersWordsInTheOrderInWhichTheyCome) {
    WordTable table;
    EXPECT_EQ(table.add("one"), 0U);
    EXPECT_EQ(table.add("a word of more than sixteen bytes"), 1U);
    EXPECT_EQ(table.add("one"), 0U);
    EXPECT_EQ(table.add("a word of more than sixteen bytes"), 1U);
    EXPECT_EQ(table.word(0), "one");
    EXPECT_EQ(table.word(1), "a word of more than sixteen bytes");
    EXPECT_EQ(table.size(), 2U);
}

TEST(WordTable, FindsShortWordsInBothWays) {
    WordTable table;
    const std::vector<std::string> words = {"a", "eighteen", "ninetynin", "sixteen letters!"};
    EXPECT_EQ(addUnmarked(table, words, 1), (Ids{0, 1, 2, 3}));
    for (WordTable::Id id = 0; id < words.size(); ++id) {
        EXPECT_EQ(table.add(words[id]), id);
        EXPECT_EQ(table.word(id), words[id]);
    }
}

TEST(WordTable, PassesOverWordsThatHaveTheMark) {
    WordTable table;
    EXPECT_EQ(addUnmarked(table, {"one", "two", "one"}, 1), (Ids{0, 1}));
    EXPECT_EQ(addUnmarked(table, {"two", "three", "three"}, 1), (Ids{2}));
    EXPECT_EQ(addUnmarked(table, {"three", "one"}, 2), (Ids{2, 0}));
}

TEST(WordTable, MarksLongWordsToo) {
    WordTable table;
    std::array<WordTable::Id, 1> id = {7};
    const std::string word(40, 'x');
    EXPECT_EQ(table.addUnmarked(word, 1, id), 1U);
    EXPECT_EQ(id.front(), 0U);
    EXPECT_EQ(table.addUnmarked(word, 1, id), 0U);
    EXPECT_EQ(table.addUnmarked(word + "y", 1, id), 1U);
    EXPECT_EQ(id.front(), 1U);
}

TEST(WordTable, KeepsNumbersAndMarksWhileItGrows) {
    WordTable table;
    std::vector<std::string> words;
    for (int i = 0; i < 5000; ++i) {
        const bool isLong = i % 3 == 0;
        words.push_back("word" + std::to_string(i) + std::string(isLong ? 20 : 0, 'x'));
        std::array<WordTable::Id, 1> id{};
        ASSERT_EQ(table.addUnmarked(words.back(), 1, id), 1U);
    }
    for (WordTable::Id id = 0; id < words.size(); ++id) {
        std::array<WordTable::Id, 1> again{};
        ASSERT_EQ(table.addUnmarked(words[id], 1, again), 0U);
        ASSERT_EQ(table.add(words[id]), id);
        ASSERT_EQ(table.word(id), words[id]);
    }
}

TEST(WordTable, SortsByBytes) {
    WordTable table;
    for (const char* word : {"b", "abcdefghi", "\xC3\xA9", "abcdefgh", "a", "abcdefgha"}) {
        table.add(word);
    }
    EXPECT_EQ(table.ascending(), (Ids{4, 3, 5, 1, 0, 2}));
}

}  // namespace

}  // namespace quillmark
