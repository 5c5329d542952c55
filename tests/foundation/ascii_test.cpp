#include "foundation/ascii.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(Ascii, KnowsItsLetters) {
    for (const char letter : {'a', 'z', 'A', 'Z'}) {
        EXPECT_TRUE(ascii::isLetter(letter)) << letter;
    }
    for (const char other : {'@', '[', '`', '{', '0', ' ', '\xe4', '\0'}) {
        EXPECT_FALSE(ascii::isLetter(other)) << other;
    }
    EXPECT_FALSE(ascii::isLetter(u'\u00e4'));
}

TEST(Ascii, ChangesTheCaseOfItsLettersAlone) {
    EXPECT_EQ(ascii::toLower('Q'), 'q');
    EXPECT_EQ(ascii::toUpper('q'), 'Q');
    EXPECT_EQ(ascii::toLower('q'), 'q');
    EXPECT_EQ(ascii::toUpper('['), '[');
    EXPECT_EQ(ascii::toLower('\xc4'), '\xc4');
    EXPECT_EQ(ascii::toLower(u'Q'), u'q');
}

TEST(Ascii, ComparesTextsInAnyCase) {
    EXPECT_TRUE(ascii::equalIgnoringCase("Navig", "nAVIG"));
    EXPECT_TRUE(ascii::equalIgnoringCase("", ""));
    EXPECT_FALSE(ascii::equalIgnoringCase("Navig", "Navi"));
    EXPECT_FALSE(ascii::equalIgnoringCase("\xc4", "\xe4"));
}

}  // namespace
}  // namespace quillmark
