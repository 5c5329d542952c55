#include "navigator/text/page_words.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "navigator/collected_words.h"
#include "navigator/utf8_decoder.h"

namespace quillmark {

namespace {

using Words = std::vector<std::string>;

Words read(std::string_view first, std::string_view second = "", std::string_view third = "") {
    const testing::Utf8Decoder decoder;
    testing::CollectedWords collected;
    const std::array pieces = {first, second, third};
    PageWords(decoder, collected).read(pieces);
    return collected.words;
}

Words inBody(const std::string& html) {
    return read("<BODY  >" + html);
}

TEST(PageWords, ReadsPiecesAsOnePage) {
    EXPECT_EQ(read("<BODY  >\nTop", "ic <I", "MG SRC=x>end"), (Words{"topic", "end"}));
}

TEST(PageWords, WordsOfEveryLengthKeepTheirLetters) {
    const std::string letters = "AbcDefgh1JklMnopq2StuVwxyz34567X";
    const std::string folded = "abcdefgh1jklmnopq2stuvwxyz34567x";
    for (std::size_t length = 1; length <= letters.size(); ++length) {
        EXPECT_EQ(inBody(letters.substr(0, length) + "." + letters.substr(0, length)),
                  (Words{folded.substr(0, length), folded.substr(0, length)}));
    }
}

TEST(PageWords, LongWordsAreCut) {
    EXPECT_EQ(inBody(std::string(40, 'a') + " b"), (Words{std::string(32, 'a'), "b"}));
}

TEST(PageWords, LongWordsThatGoOnInOtherLettersAreOneWord) {
    EXPECT_EQ(inBody(std::string(40, 'a') + "\xC3\xA9 b"), (Words{std::string(32, 'a'), "b"}));
}

TEST(PageWords, AccentsFoldWithinWords) {
    EXPECT_EQ(inBody("Caf\xC3\xA9s na\xC3\xAFve-\xC3\x89t\xC3\xA9"),
              (Words{"cafes", "naive", "ete"}));
}

TEST(PageWords, NumericReferencesAreLettersAndNamedOnesSeparate) {
    EXPECT_EQ(inBody("caf&#233;s a&amp;b &#65;x &#xZ;y"),
              (Words{"cafes", "a", "b", "ax", "xz", "y"}));
}

TEST(PageWords, TagsSeparateAndTheirAttributesHaveNoWords) {
    EXPECT_EQ(inBody("in<B>sert</B><IMG ALT='not > this' TITLE=\"<x>\">ed"),
              (Words{"in", "sert", "ed"}));
}

TEST(PageWords, ScriptsAndStylesAreLeftOut) {
    EXPECT_EQ(inBody("a<script>if (b < c) '</scripts>'</SCRIPT >d<Style>e</style>f<scripty>g"),
              (Words{"a", "d", "f", "g"}));
}

TEST(PageWords, CommentsEndAtTheirOwnEnd) {
    EXPECT_EQ(inBody("a<!-- b > c -->d<!DOCTYPE e>f"), (Words{"a", "d", "f"}));
}

TEST(PageWords, UnclosedTagsReachToTheEnd) {
    EXPECT_EQ(inBody("a<B title=\"b"), (Words{"a"}));
    EXPECT_EQ(inBody("a<script>b"), (Words{"a"}));
    EXPECT_EQ(inBody("a<!-- b"), (Words{"a"}));
}

TEST(PageWords, OtherLessThanSignsSeparate) {
    EXPECT_EQ(inBody("1<2 a< b<"), (Words{"1", "2", "a", "b"}));
}

TEST(PageWords, TextWithoutABodyTagHasNone) {
    EXPECT_EQ(read("words"), Words{});
    EXPECT_EQ(read("<BODY words"), Words{});
}

TEST(PageWords, AttributesOfTheBodyMayHoldEverything) {
    EXPECT_EQ(read("<BODY TITLE=\"a>b\" >c"), (Words{"c"}));
}

TEST(DocumentDecoder, ReadsTheSystemsCodePage) {
    std::u16string text;
    DocumentDecoder(TextEncoding::codePage()).append(text, "a\xE9");
    EXPECT_EQ(text, u"a\u00E9");
}

}  // namespace

}  // namespace quillmark
