#include "navigator/data/json_text.h"

#include <gtest/gtest.h>

namespace quillmark {

namespace {

std::string stringOf(std::u16string_view text) {
    std::string json;
    json_text::appendString(json, text);
    return json;
}

TEST(JsonText, PrintableAsciiStandsForItself) {
    EXPECT_EQ(stringOf(u"a Z~&>/;()"), "\"a Z~&>/;()\"");
}

TEST(JsonText, WhatMayEndAStringOrAScriptIsEscaped) {
    EXPECT_EQ(stringOf(u"\"'\\<"), R"("\\u0022\\u0027\\u005c\\u003c")");
}

TEST(JsonText, OtherCharactersAreEscapedByUnits) {
    EXPECT_EQ(stringOf(u"\n\x7F\u00E9\u2028\U0001F600"),
              R"("\\u000a\\u007f\\u00e9\\u2028\\ud83d\\ude00")");
}

}  // namespace

}  // namespace quillmark
