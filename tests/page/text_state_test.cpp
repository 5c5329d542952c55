#include "page/text_state.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(FontData, StartsAsArialWithoutSizeAndAttributes) {
    const FontData font;
    EXPECT_EQ(font.name, "Arial");
    EXPECT_EQ(font.size, 0);
    EXPECT_FALSE(font.bold || font.italic || font.underline || font.strike);
    EXPECT_FALSE(font.hasAttribute());
}

TEST(FontData, LosesItsNameWhenCleared) {
    FontData font;
    font.size = 10;
    font.strike = true;
    font.clear();
    EXPECT_EQ(font.name, "");
    EXPECT_EQ(font.size, 0);
    EXPECT_FALSE(font.hasAttribute());
}

TEST(FontData, DiffersByEveryField) {
    const FontData plain;
    const auto differs = [&plain](auto change) {
        FontData font(plain);
        change(font);
        const bool differsWhenSet = font != plain;
        font = plain;
        return differsWhenSet && !(font != plain);
    };
    EXPECT_TRUE(differs([](FontData& font) { font.name = "arial"; }));
    EXPECT_TRUE(differs([](FontData& font) { font.size = 1; }));
    EXPECT_TRUE(differs([](FontData& font) { font.bold = true; }));
    EXPECT_TRUE(differs([](FontData& font) { font.italic = true; }));
    EXPECT_TRUE(differs([](FontData& font) { font.underline = true; }));
    EXPECT_TRUE(differs([](FontData& font) { font.strike = true; }));
}

TEST(TextState, StartsAsNormalAndIsReset) {
    DocHtmlTextState state;
    EXPECT_EQ(state.textAlign, TextAlign::none);
    EXPECT_EQ(state.styleName, "Normal");
    EXPECT_FALSE(state.fontOpen);
    EXPECT_FALSE(state.font != FontData());
    state.textAlign = TextAlign::center;
    state.styleName = "List";
    state.fontOpen = true;
    state.font.size = 12;
    const DocHtmlTextState copy(state);
    state.reset();
    EXPECT_EQ(state.textAlign, TextAlign::none);
    EXPECT_EQ(state.styleName, "Normal");
    EXPECT_FALSE(state.fontOpen);
    EXPECT_EQ(state.font.size, 12) << "the font stays";
    EXPECT_EQ(copy.textAlign, TextAlign::center);
    EXPECT_EQ(copy.styleName, "List");
    EXPECT_TRUE(copy.fontOpen);
    EXPECT_EQ(copy.font.size, 12);
}

}  // namespace
}  // namespace quillmark
