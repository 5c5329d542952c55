// The cases that the browser's side is tested with too.

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "foundation/utf8.h"
#include "navigator/collected_words.h"
#include "navigator/text/page_words.h"
#include "navigator/text/plain_text.h"
#include "navigator/text/word_splitter.h"
#include "navigator/utf8_decoder.h"

namespace quillmark {

namespace {

using testing::CollectedWords;
using testing::Utf8Decoder;
using Words = std::vector<std::string>;

rapidjson::Document allCases() {
    std::ifstream file(DOCHTML_WORD_CASES, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    rapidjson::Document cases;
    cases.Parse(text.data(), text.size());
    return cases;
}

std::string textOf(const rapidjson::Value& value) {
    return {value.GetString(), value.GetStringLength()};
}

Words wordsOf(const rapidjson::Value& values) {
    Words words;
    for (const rapidjson::Value& value : values.GetArray()) {
        words.push_back(textOf(value));
    }
    return words;
}

/// Calls `check(text, expected)` for the cases of one kind.
template <typename Check>
void forEachCase(const char* kind, const Check& check) {
    const rapidjson::Document cases = allCases();
    ASSERT_FALSE(cases.HasParseError());
    ASSERT_FALSE(cases[kind].GetArray().Empty());
    for (const rapidjson::Value& one : cases[kind].GetArray()) {
        SCOPED_TRACE(textOf(one[0]));
        check(textOf(one[0]), one[1]);
    }
}

Words split(const std::string& text, WordSplitter::Within within) {
    CollectedWords collected;
    WordSplitter(collected, within).split(utf8::toUtf16(text));
    return collected.words;
}

Words pageWords(const std::string& html) {
    const Utf8Decoder decoder;
    CollectedWords collected;
    const std::string_view page = html;
    PageWords(decoder, collected).read({&page, 1});
    return collected.words;
}

TEST(WordCases, TextsOfEntriesAreSplit) {
    forEachCase("entry", [](const std::string& text, const rapidjson::Value& expected) {
        EXPECT_EQ(split(text, WordSplitter::Within::alsoWithin), wordsOf(expected));
    });
}

TEST(WordCases, TextsOfPagesAreSplit) {
    forEachCase("page", [](const std::string& text, const rapidjson::Value& expected) {
        EXPECT_EQ(split(text, WordSplitter::Within::whole), wordsOf(expected));
    });
}

TEST(WordCases, PagesAreReadWithoutTheirTags) {
    forEachCase("html", [](const std::string& html, const rapidjson::Value& expected) {
        EXPECT_EQ(pageWords(html), wordsOf(expected));
    });
}

TEST(WordCases, EntriesTextsBecomePlain) {
    forEachCase("text", [](const std::string& html, const rapidjson::Value& expected) {
        EXPECT_EQ(utf8::fromUtf16(plain_text::ofHtml(html, Utf8Decoder())), textOf(expected));
    });
}

TEST(WordCases, PagesBytesAreSplitLikeTheirText) {
    forEachCase("page", [](const std::string& text, const rapidjson::Value& expected) {
        if (text.find('<') == std::string::npos && text.find('&') == std::string::npos) {
            EXPECT_EQ(pageWords("<BODY>" + text), wordsOf(expected));
        }
    });
}

}  // namespace

}  // namespace quillmark
