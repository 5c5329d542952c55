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
    EXPECT_EQ(SysText::toUtf8(narrow), narrow);
    EXPECT_EQ(SysText::fromUtf8(narrow), narrow);
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
    EXPECT_EQ(SysText::fromUtf8("\xE2\x82\xAC"), "\x80");
    EXPECT_EQ(SysText::toUtf8("\x80"), "\xE2\x82\xAC");
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

TEST(SystemText, SaysWhatTheCodePageCanHold) {
    EXPECT_TRUE(SysText::holds(u""));
    EXPECT_TRUE(SysText::holds(u"a?b\u20AC\u00FC"));
    EXPECT_TRUE(SysText::holds(std::u16string_view(u"a\0b", 3)));
    EXPECT_FALSE(SysText::holds(u"a\u4E2D"));
    EXPECT_FALSE(SysText::holds(u"\u0100"));
    EXPECT_FALSE(SysText::holds(u"\U0001F600"));
    EXPECT_FALSE(SysText::holds(std::u16string(1, u'\xD83D')));
}

TEST(SystemText, SaysTheSameForUtf8ThatIsWellFormed) {
    EXPECT_TRUE(SysText::holdsUtf8(""));
    EXPECT_TRUE(SysText::holdsUtf8("a?\xE2\x82\xAC\xC3\xBC"));
    EXPECT_FALSE(SysText::holdsUtf8("\xE4\xB8\xAD"));
    EXPECT_FALSE(SysText::holdsUtf8("\xE9"));
    EXPECT_FALSE(SysText::holdsUtf8("?\xC3"));
}

TEST(SystemText, CountsTheCharactersThatTheCodePageLoses) {
    EXPECT_EQ(SysText::countLost(u""), 0U);
    EXPECT_EQ(SysText::countLost(u"a?\u20AC"), 0U);
    EXPECT_EQ(SysText::countLost(u"\u4E2Da\u20AC\u6587"), 2U);
    EXPECT_EQ(SysText::countLost(u"\U0001F600\U0001F600"), 2U);
    EXPECT_EQ(SysText::countLost(std::u16string{u'\xD83D', u'x', u'\xDE00'}), 2U);
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
