#include "platform/sys_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmark {
namespace {

TEST(SystemText, KeepsAsciiByteForByte) {
    std::u16string wide;
    std::string narrow;
    for (char c = 0; c >= 0 && c < 127; ++c) {
        wide.push_back(static_cast<char16_t>(c));
        narrow.push_back(c);
    }
    EXPECT_EQ(SysText::narrow(wide), narrow);
    EXPECT_EQ(SysText::widen(narrow), wide);
}

TEST(SystemText, AppendsAfterWhatIsThere) {
    std::string out = "a";
    SysText::appendNarrow(out, u"bc");
    SysText::appendNarrow(out, u"");
    SysText::appendNarrow(out, u"\u00E9");
    EXPECT_EQ(out, "abc\xE9");
}

TEST(SystemText, HoldsTheLettersOfWindows1252) {
    EXPECT_EQ(SysText::narrow(u"\u20AC\u0152\u00FC"), "\x80\x8C\xFC");
    EXPECT_EQ(SysText::widen("\x80\x8C\xFC"), u"\u20AC\u0152\u00FC");
}

TEST(SystemText, PutsAQuestionMarkForEachUnitThatItCannotHold) {
    EXPECT_EQ(SysText::narrow(u"a\u4E2Db"), "a?b");
    EXPECT_EQ(SysText::narrow(u"\U0001F600"), "??");
    EXPECT_EQ(SysText::narrow(std::u16string(1, u'\xD83D')), "?");
}

TEST(SystemText, DoesNotMakeALetterOutOfOneThatLooksLikeIt) {
    EXPECT_EQ(SysText::narrow(u"\u0100\u2215\uFF1C"), "???");
}

TEST(SystemText, KeepsZeroUnits) {
    EXPECT_EQ(SysText::narrow(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(SystemText, NamesTheCodePage) {
    EXPECT_EQ(SysText::codePageName(), "Windows-1252");
}

TEST(SystemText, FindsAUnitOutsideAsciiAnywhereInALongText) {
    for (const std::size_t length : {1U, 15U, 16U, 17U, 63U, 64U, 1000U}) {
        for (std::size_t odd = 0; odd < length; ++odd) {
            std::u16string wide(length, u'x');
            std::string narrow(length, 'x');
            wide[odd] = u'\u2013';
            narrow[odd] = '\x96';
            ASSERT_EQ(SysText::narrow(wide), narrow) << odd << " of " << length;
        }
    }
}

}  // namespace
}  // namespace quillmark
