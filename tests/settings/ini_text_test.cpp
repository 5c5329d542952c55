#include "settings/ini_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace quillmark {
namespace {

std::optional<std::string> value(std::string_view text) {
    return IniText(text).value("S", "K");
}

std::string changed(std::string_view text, std::string_view newValue) {
    IniText ini(text);
    EXPECT_TRUE(ini.set("S", "K", newValue));
    return ini.text();
}

TEST(IniValue, IsFoundByItsSectionAndKeyInAnyCase) {
    EXPECT_EQ(value("[S]\nK=1\n"), "1");
    EXPECT_EQ(value("[s]\nk=1"), "1");
    EXPECT_EQ(value("[R]\nK=0\n[S]\nX=2\nK=1\n"), "1");
}

TEST(IniValue, IsNothingIfItIsMissing) {
    EXPECT_EQ(value(""), std::nullopt);
    EXPECT_EQ(value("K=1\n"), std::nullopt);
    EXPECT_EQ(value("[S]\n[T]\nK=1\n"), std::nullopt);
    EXPECT_EQ(value("[S]\nKK=1\nK\n"), std::nullopt);
    EXPECT_EQ(value("[S\nK=1\n"), std::nullopt);
}

TEST(IniValue, IsTrimmedOnBothSidesOfTheEqualsSign) {
    EXPECT_EQ(value("[S]\n  K \t=  a b \t\n"), "a b");
    EXPECT_EQ(value("[S]\r\nK=1\r\n"), "1");
    EXPECT_EQ(value("[S]\nK=\n"), "");
}

TEST(IniValue, LosesOnePairOfQuotes) {
    EXPECT_EQ(value("[S]\nK=\" a \"\n"), " a ");
    EXPECT_EQ(value("[S]\nK='a'\n"), "a");
    EXPECT_EQ(value("[S]\nK=\"\"a\"\"\n"), "\"a\"");
    EXPECT_EQ(value("[S]\nK=\"a\n"), "\"a");
    EXPECT_EQ(value("[S]\nK=\"a'\n"), "\"a'");
    EXPECT_EQ(value("[S]\nK=\"\n"), "\"");
}

TEST(IniValue, MayContainEqualsSignsAndSemicolons) {
    EXPECT_EQ(value("[S]\nK=a=b;c\n"), "a=b;c");
}

TEST(IniValue, IsNotReadFromAComment) {
    EXPECT_EQ(value("[S]\n;K=0\n  ; K=0\nK=1\n"), "1");
    EXPECT_EQ(value(";[S]\nK=0\n"), std::nullopt);
}

TEST(IniValue, IsTheFirstOfTheFirstSectionOfAName) {
    EXPECT_EQ(value("[S]\nK=1\nK=2\n[S]\nK=3\n"), "1");
    EXPECT_EQ(value("[S]\n[S]\nK=3\n"), std::nullopt);
}

TEST(IniChange, ReplacesTheValueInItsPlace) {
    EXPECT_EQ(changed("; mine\n[S]\nA=1\nK = old\nB=2\n[T]\nK=3\n", "new"),
              "; mine\n[S]\nA=1\nK=new\nB=2\n[T]\nK=3\n");
}

TEST(IniChange, AddsAKeyAfterTheLastLineOfItsSection) {
    EXPECT_EQ(changed("[S]\nA=1\n\n[T]\n", "new"), "[S]\nA=1\nK=new\n\n[T]\n");
    EXPECT_EQ(changed("[S]\n", "new"), "[S]\nK=new\n");
}

TEST(IniChange, AddsASectionAtTheEnd) {
    EXPECT_EQ(changed("", "new"), "[S]\nK=new\n");
    EXPECT_EQ(changed("[T]\nK=1", "new"), "[T]\nK=1\n[S]\nK=new\n");
}

TEST(IniChange, KeepsWhatItDoesNotUnderstand) {
    EXPECT_EQ(changed("what?\n# x\n\n[S]\n???\nK=1", "2"), "what?\n# x\n\n[S]\n???\nK=2");
}

TEST(IniChange, KeepsTheLineEndsOfTheFile) {
    EXPECT_EQ(changed("[S]\r\nA=1\r\n", "2"), "[S]\r\nA=1\r\nK=2\r\n");
    EXPECT_EQ(changed("[S]\r\nK=1\r\n", "2"), "[S]\r\nK=2\r\n");
    EXPECT_EQ(changed("[T]\r\n", "2"), "[T]\r\n[S]\r\nK=2\r\n");
}

TEST(IniChange, GivesTheLastLineAnEndWhereTheFileGaveItNone) {
    EXPECT_EQ(changed("[S]\nA=1", "2"), "[S]\nA=1\nK=2");
    EXPECT_EQ(changed("[S]\r\nA=1", "2"), "[S]\r\nA=1\r\nK=2");
    EXPECT_EQ(changed("[S]\r\nK=1", "2"), "[S]\r\nK=2");
    EXPECT_EQ(changed("[T]\r\nA=1", "2"), "[T]\r\nA=1\r\n[S]\r\nK=2\r\n");
    EXPECT_EQ(changed("[S]", "2"), "[S]\nK=2");
}

TEST(IniChange, EndsAllLinesAsTheFirst) {
    EXPECT_EQ(changed("[S]\r\nA=1\n\nB=2\r\n", "2"), "[S]\r\nA=1\r\n\r\nB=2\r\nK=2\r\n");
    EXPECT_EQ(changed("[S]\nA=1\r\n", "2"), "[S]\nA=1\nK=2\n");
}

TEST(IniChange, WritesWhatItReadsBack) {
    for (const char* const text : {"", " ", "a", " a", "a ", "\"", "\"\"", "\"a\"", "'a'", "a=b",
                                   ";a", "[x]", "BGCOLOR=\"#FFFFFF\"", "\"a\" b=\"c\"", "\t"}) {
        IniText ini;
        ASSERT_TRUE(ini.set("S", "K", text));
        EXPECT_EQ(value(ini.text()), text);
    }
}

TEST(IniChange, RejectsWhatAnIniFileCannotHold) {
    IniText ini("[S]\nK=1\n");
    EXPECT_FALSE(ini.set("S", "K", "a\nb"));
    EXPECT_FALSE(ini.set("S", "K", "a\rb"));
    EXPECT_FALSE(ini.set("S", "K", std::string_view("a\0b", 3)));
    EXPECT_FALSE(ini.set("S", "", "a"));
    EXPECT_FALSE(ini.set("S", "a=b", "a"));
    EXPECT_FALSE(ini.set("S", ";a", "a"));
    EXPECT_FALSE(ini.set("S", "[a", "a"));
    EXPECT_FALSE(ini.set("S", " a", "a"));
    EXPECT_FALSE(ini.set("S]", "a", "a"));
    EXPECT_EQ(ini.text(), "[S]\nK=1\n");
}

TEST(IniUnknownLine, IsTheFirstThatIsNotRecognized) {
    EXPECT_EQ(IniText("; c\n# c\n\n[S]\nK=1\n").firstUnknownLine(), std::nullopt);
    EXPECT_EQ(IniText("[S]\nK=1\nwhat\n").firstUnknownLine(), 3U);
    EXPECT_EQ(IniText("[S\n").firstUnknownLine(), 1U);
    EXPECT_EQ(IniText(std::string_view("[S]\nK=\0\n", 8)).firstUnknownLine(), 2U);
}

}  // namespace
}  // namespace quillmark
