#include "driver/text/style_names.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(StyleNames, HaveTheLevelAfterTheirPrefixAndOneCharacter) {
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Heading 3"), 3);
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Heading-12"), 12);
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Heading 2 and more"), 2);
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Heading -2"), -2);
    EXPECT_EQ(style_names::levelAfter(style_names::bulletedList, "List Bullet 4"), 4);
}

TEST(StyleNames, HaveLevelOneWithoutANumber) {
    for (const char* const name : {"", "Heading", "Heading ", "Heading2", "Heading 0", "Normal"}) {
        EXPECT_EQ(style_names::levelAfter(style_names::heading, name), 1) << name;
    }
}

TEST(StyleNames, AreSkippedWhateverTheirBeginningIs) {
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Appendix7"), 7);
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "Normal 7"), 1);
    EXPECT_EQ(style_names::levelAfter(style_names::heading, "MyStyle 7"), 7);
}

}  // namespace
}  // namespace quillmark
