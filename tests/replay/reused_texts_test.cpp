#include "replay/play/reused_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmark::replay {
namespace {

TEST(ReusedTexts, HoldTheUnitsThatWerePassedLast) {
    ReusedTexts texts;
    EXPECT_EQ(Text::viewOf(texts.textOf(u"one")), u"one");
    EXPECT_EQ(Text::viewOf(texts.textOf(u"three")), u"three");
    EXPECT_EQ(Text::viewOf(texts.textOf(u"two")), u"two");
    const std::u16string longest(ReusedTexts::longest - 1, u'x');
    EXPECT_EQ(Text::viewOf(texts.textOf(longest)), longest);
}

TEST(ReusedTexts, EndWithAZeroUnit) {
    ReusedTexts texts;
    EXPECT_EQ(texts.textOf(u"abc")[3], 0);
    EXPECT_EQ(texts.textOf(u"xyz")[3], 0);
}

TEST(ReusedTexts, GiveAnEmptyTextMemoryToo) {
    ReusedTexts texts;
    ASSERT_NE(texts.textOf({}), nullptr);
    EXPECT_EQ(texts.textOf({}), texts.textOf(u""));
    EXPECT_EQ(SysStringLen(texts.textOf({})), 0U);
}

TEST(ReusedTexts, UseTheMemoryOfATextOfTheSameLengthAgain) {
    ReusedTexts texts;
    const BSTR first = texts.textOf(u"one");
    static_cast<void>(texts.textOf(u"three"));
    EXPECT_EQ(texts.textOf(u"two"), first);
}

}  // namespace
}  // namespace quillmark::replay
