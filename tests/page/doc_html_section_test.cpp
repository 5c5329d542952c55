#include "page/doc_html_section.h"

#include <gtest/gtest.h>

#include "support/environment_variable.h"

namespace quillmark {
namespace {

class Section : public ::testing::Test {
protected:
    [[nodiscard]] std::string shown(long pageNumber = 7, const OrxString& file = "p.htm") const {
        return section.getDisplayString(pageNumber, file).str();
    }
    EnvironmentVariable clock{"SOURCE_DATE_EPOCH", "1718281845"};  // 2024-06-13 12:30:45
    DocHtmlSection section;
};

TEST_F(Section, CollectsTextUnchanged) {
    EXPECT_EQ(shown(), "");
    section.insertText("<B>a");
    section.insertText(" & b");
    EXPECT_EQ(shown(), "<B>a & b");
}

TEST_F(Section, FillsDateAndTimeAtOnce) {
    section.insertField(FieldKind::date);
    section.insertText(" ");
    section.insertField(FieldKind::time);
    const EnvironmentVariable later("SOURCE_DATE_EPOCH", "1818281845");
    EXPECT_EQ(shown(), "06/13/24 12:30:45");
}

TEST_F(Section, FreezesDateAndTimeAtATestLevel) {
    section.setTestLevel(-3);
    section.insertField(FieldKind::date);
    section.insertField(FieldKind::time);
    EXPECT_EQ(shown(), "XX/XX/XXXX:XX:XX");
}

TEST_F(Section, FillsFileAndNumberPerPage) {
    section.insertField(FieldKind::fileName);
    section.insertText(" ");
    section.insertField(FieldKind::pageNumber);
    EXPECT_EQ(shown(7, "p.htm"), "p.htm 7");
    EXPECT_EQ(shown(-1, ""), " -1");
    EXPECT_EQ(shown(2147483647L, "q"), "q 2147483647");
}

TEST_F(Section, FillsOnlyTheFirstTokenOfAKind) {
    for (int i = 0; i < 2; ++i) {
        section.insertField(FieldKind::pageNumber);
        section.insertField(FieldKind::fileName);
    }
    EXPECT_EQ(shown(), "7p.htm<PAGE><FILE>");
}

TEST_F(Section, FillsTheNumberFirst) {
    section.insertText("<FILE>");
    EXPECT_EQ(shown(7, "<PAGE>.htm"), "<PAGE>.htm") << "a file name is not looked at again";
    section.clear();
    section.insertText("<PA<PAGE>GE>");
    EXPECT_EQ(shown(), "<PA7GE>");
}

TEST_F(Section, RecognizesTokensByTheirCase) {
    section.insertText("<page><PAGE");
    EXPECT_EQ(shown(), "<page><PAGE");
}

TEST_F(Section, AddsNothingForAnUnknownField) {
    for (const int kind : {0, 5, -1, 32767, -32768}) {
        section.insertField(static_cast<FieldKind>(kind));
    }
    EXPECT_EQ(shown(), "");
}

TEST_F(Section, IsClearedButForItsFont) {
    section.insertText("a");
    section.setTestLevel(1);
    DocHtmlTextState& state = *section.getState();
    state.textAlign = TextAlign::center;
    state.styleName = "Heading 1";
    state.fontOpen = true;
    FontData font;
    font.bold = true;
    section.setFont(font);
    section.clear();
    section.insertField(FieldKind::date);
    EXPECT_EQ(shown(), "06/13/24");
    EXPECT_EQ(section.getState(), &state);
    EXPECT_EQ(state.textAlign, TextAlign::none);
    EXPECT_EQ(state.styleName, "Normal");
    EXPECT_FALSE(state.fontOpen);
    EXPECT_TRUE(state.font.bold);
}

TEST_F(Section, IsCopiedWhole) {
    section.insertText("a");
    DocHtmlSection copy(section);
    copy.insertText("b");
    copy.getState()->textAlign = TextAlign::right;
    EXPECT_EQ(shown(), "a");
    EXPECT_EQ(section.getState()->textAlign, TextAlign::none);
    section = copy;
    EXPECT_EQ(shown(), "ab");
    EXPECT_EQ(section.getState()->textAlign, TextAlign::right);
    const DocHtmlSection& same = section;
    section = same;
    EXPECT_EQ(shown(), "ab");
}

}  // namespace
}  // namespace quillmark
