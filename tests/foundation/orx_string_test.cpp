#include "foundation/orx_string.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>
#include <string>
#include <unordered_set>

namespace quillmark {
namespace {

OrxString replaced(OrxString text, std::string_view from, std::string_view to) {
    return text.replaceStr(from, to);
}

TEST(String, IsEmptyAtFirstAndFromNull) {
    const char* const null = nullptr;
    EXPECT_TRUE(OrxString().isEmpty());
    EXPECT_TRUE(OrxString(null).isEmpty());
    EXPECT_EQ(OrxString().length(), 0U);
    EXPECT_STREQ(OrxString().data(), "");
}

TEST(String, HoldsAnyByteZeroIncluded) {
    const std::string bytes("a\0\xFF", 3);
    const OrxString text(bytes);
    EXPECT_EQ(text.length(), 3U);
    EXPECT_EQ(text.str(), bytes);
    EXPECT_EQ(text.data()[2], '\xFF');
    EXPECT_EQ(text.data()[3], '\0');
}

TEST(String, Appends) {
    OrxString text("a");
    text.append("bc").append('d').append("") += "e";
    EXPECT_EQ(text, "abcde");
}

TEST(String, AppendsItself) {
    OrxString text("ab");
    text.append(text);
    EXPECT_EQ(text, "abab");
}

TEST(String, InsertsInFrontOfAPosition) {
    EXPECT_EQ(OrxString("ad").insert(1, "bc"), "abcd");
    EXPECT_EQ(OrxString("b").insert(0, "a"), "ab");
    EXPECT_EQ(OrxString("a").insert(1, "b"), "ab");
}

TEST(String, AppendsWhatIsInsertedBeyondItsEnd) {
    EXPECT_EQ(OrxString("a").insert(99, "b"), "ab");
    EXPECT_EQ(OrxString("a").insert(OrxString::npos, "b"), "ab");
}

TEST(String, RemovesUpToItsEnd) {
    EXPECT_EQ(OrxString("abcd").remove(1, 2), "ad");
    EXPECT_EQ(OrxString("abcd").remove(1), "a");
    EXPECT_EQ(OrxString("abcd").remove(2, 99), "ab");
    EXPECT_EQ(OrxString("abcd").remove(1, 0), "abcd");
    EXPECT_EQ(OrxString("abcd").remove(4), "abcd");
    EXPECT_EQ(OrxString("abcd").remove(99, 1), "abcd");
}

TEST(String, IsEmptyAfterAClear) {
    OrxString text("abc");
    text.clear();
    EXPECT_TRUE(text.isEmpty());
}

TEST(String, FindsTheFirstOccurrence) {
    const OrxString text("abcabc");
    EXPECT_EQ(text.find("bc"), 1U);
    EXPECT_EQ(text.find("bc", 1), 1U);
    EXPECT_EQ(text.find("bc", 2), 4U);
    EXPECT_EQ(text.find("bc", 5), OrxString::npos);
    EXPECT_EQ(text.find("x"), OrxString::npos);
    EXPECT_EQ(text.find("x", 99), OrxString::npos);
    EXPECT_EQ(text.find(""), 0U);
    EXPECT_TRUE(text.contains("cab"));
    EXPECT_FALSE(text.contains("cb"));
}

TEST(String, FindsTheFirstAndTheLastOfACharacter) {
    const OrxString text("a.b.c");
    EXPECT_EQ(text.first('.'), 1U);
    EXPECT_EQ(text.last('.'), 3U);
    EXPECT_EQ(text.first('x'), OrxString::npos);
    EXPECT_EQ(text.last('x'), OrxString::npos);
    EXPECT_EQ(OrxString().last('x'), OrxString::npos);
}

TEST(String, KnowsItsBeginning) {
    EXPECT_TRUE(OrxString("abc").startsWith("ab"));
    EXPECT_TRUE(OrxString("abc").startsWith(""));
    EXPECT_FALSE(OrxString("abc").startsWith("abcd"));
    EXPECT_FALSE(OrxString("abc").startsWith("AB"));
}

TEST(String, GivesAPartOfItself) {
    const OrxString text("abcd");
    EXPECT_EQ(text.substr(1, 2), "bc");
    EXPECT_EQ(text.substr(2), "cd");
    EXPECT_EQ(text.substr(2, 99), "cd");
    EXPECT_EQ(text.substr(4), "");
    EXPECT_EQ(text.substr(99, 1), "");
}

TEST(StringReplace, ReplacesEveryOccurrenceFromLeftToRight) {
    EXPECT_EQ(replaced("a:b:c", ":", "|"), "a|b|c");
    EXPECT_EQ(replaced("aaaa", "aa", "b"), "bb");
    EXPECT_EQ(replaced("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaced("abc", "abc", ""), "");
    EXPECT_EQ(replaced("xaxbx", "x", ""), "ab");
}

TEST(StringReplace, NeverSearchesInsertedText) {
    EXPECT_EQ(replaced("a\\b", "\\", "\\\\"), "a\\\\b");
    EXPECT_EQ(replaced("ab", "b", "ab"), "aab");
    // Remaining and inserted text together form the searched text, which is not replaced.
    EXPECT_EQ(replaced("aabb", "ab", ""), "ab");
}

TEST(StringReplace, LeavesATextWithoutAnOccurrenceAlone) {
    EXPECT_EQ(replaced("abc", "x", "y"), "abc");
    EXPECT_EQ(replaced("", "x", "y"), "");
    EXPECT_EQ(replaced("abc", "", "y"), "abc");
    EXPECT_EQ(replaced("ab", "abc", "y"), "ab");
}

TEST(StringReplace, CanBeChained) {
    OrxString link("C:\\out\\a.gif");
    EXPECT_EQ(link.replaceStr(":", "|").replaceStr("\\", "/"), "C|/out/a.gif");
}

TEST(StringReplace, TakesItsArgumentsFromTheStringItself) {
    OrxString text("abab");
    EXPECT_EQ(text.replaceStr(text.view().substr(0, 1), text.view().substr(1, 1)), "bbbb");
}

TEST(StringCase, ChangesAsciiLettersAlone) {
    EXPECT_EQ(OrxString("AZaz09[`{@\xC4\xE4").toLower(), "azaz09[`{@\xC4\xE4");
    EXPECT_EQ(OrxString("AZaz09[`{@\xC4\xE4").toUpper(), "AZAZ09[`{@\xC4\xE4");
}

TEST(StringHash, IsTheSameInEveryRun) {
    EXPECT_EQ(OrxString("").hash(), static_cast<std::size_t>(0xCBF29CE484222325U));
    EXPECT_EQ(OrxString("a").hash(), static_cast<std::size_t>(0xAF63DC4C8601EC8CU));
    EXPECT_EQ(OrxString("foobar").hash(), static_cast<std::size_t>(0x85944171F73967E8U));
}

TEST(StringHash, ServesUnorderedContainers) {
    const std::unordered_set<OrxString> set = {"a", "b", "a"};
    EXPECT_EQ(set.size(), 2U);
    EXPECT_TRUE(set.contains("b"));
}

TEST(StringOrder, IsByUnsignedBytes) {
    EXPECT_LT(OrxString("a"), OrxString("b"));
    EXPECT_LT(OrxString("Z"), OrxString("a"));
    EXPECT_LT(OrxString("a"), OrxString("aa"));
    EXPECT_LT(OrxString("z"), OrxString("\x80"));
    EXPECT_EQ(OrxString("a"), OrxString("a"));
    EXPECT_NE(OrxString("a"), OrxString("A"));
    EXPECT_NE(OrxString(std::string("a\0b", 3)), OrxString("a"));
}

TEST(StringSum, JoinsEveryKindOfText) {
    const OrxString a("a");
    EXPECT_EQ(a + a, "aa");
    EXPECT_EQ(a + "b", "ab");
    EXPECT_EQ("b" + a, "ba");
    EXPECT_EQ(a + std::string("b"), "ab");
    EXPECT_EQ(std::string("b") + a, "ba");
    EXPECT_EQ(a + std::string_view("b"), "ab");
    EXPECT_EQ(std::string_view("b") + a, "ba");
}

TEST(String, IsWrittenToAStream) {
    std::ostringstream stream;
    stream << OrxString("a") << OrxString("bc");
    EXPECT_EQ(stream.str(), "abc");
}

std::string someText(std::mt19937& random, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = static_cast<char>('a' + random() % 3);
    }
    return text;
}

/// A straightforward implementation: one occurrence after the other, in place.
std::string naiveReplace(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; !from.empty() && (at = text.find(from, at)) != std::string::npos;) {
        text.replace(at, from.size(), to);
        at += to.size();
    }
    return text;
}

TEST(StringReplaceProperty, AgreesWithAStraightforwardImplementation) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const std::string text = someText(random, 12);
        const std::string from = someText(random, 3);
        const std::string to = someText(random, 3);
        ASSERT_EQ(replaced(text, from, to), naiveReplace(text, from, to))
            << text << " " << from << " " << to;
    }
}

TEST(StringProperty, WhatWasInsertedCanBeRemoved) {
    std::mt19937 random(2);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = someText(random, 12);
        const std::string more = someText(random, 12);
        const std::size_t place = random() % (text.size() + 1);
        OrxString changed(text);
        ASSERT_EQ(changed.insert(place, more).substr(place, more.size()), more);
        ASSERT_EQ(changed.remove(place, more.size()), text);
    }
}

}  // namespace
}  // namespace quillmark
