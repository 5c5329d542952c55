#include "driver/text/font_writer.h"
#include "driver/document_fixture.h"

namespace quillmark {
namespace {

class Fonts : public testing::OpenDocumentTest {
protected:
    /// What setting that size alone writes.
    std::string sizeTag(std::int16_t points) {
        renew();
        open();
        doc().setFontSize(points);
        return written();
    }
};

TEST_F(Fonts, MapPointsToTheSevenSizes) {
    const std::pair<int, int> sizes[] = {{-32768, 1}, {-4, 1}, {1, 1},  {8, 1},    {9, 2},  {10, 2},
                                         {11, 3},     {12, 3}, {13, 4}, {15, 4},   {16, 5}, {20, 5},
                                         {21, 6},     {28, 6}, {29, 7}, {32767, 7}};
    for (const auto& [points, digit] : sizes) {
        EXPECT_EQ(sizeTag(static_cast<std::int16_t>(points)),
                  "<BASEFONT SIZE = " + std::to_string(digit) + ">")
            << points;
    }
}

TEST_F(Fonts, CloseTheBaseFontAtSizeZero) {
    EXPECT_EQ(sizeTag(0), "</BASEFONT>");
}

TEST_F(Fonts, OpenASecondSizeWithoutClosingTheFirst) {
    doc().setFontSize(10);
    doc().setFontSize(12);
    EXPECT_EQ(body(), "<BASEFONT SIZE = 2><BASEFONT SIZE = 3></BASEFONT>");
}

TEST_F(Fonts, WriteTheTagOfEachAttribute) {
    for (const std::int16_t code : {DocBold, DocItalic, DocUnderline, DocStrike}) {
        doc().setFontAttribute(code, true);
        doc().setFontAttribute(code, false);
    }
    EXPECT_EQ(written(), "<B></B><I></I><U></U><STRIKE></STRIKE>");
}

TEST_F(Fonts, CloseAnAttributeThatIsNotOpen) {
    doc().setFontAttribute(2, false);
    EXPECT_EQ(written(), "</I>");
}

TEST_F(Fonts, WriteATagThatChangesNothing) {
    doc().setFontAttribute(1, true);
    doc().setFontAttribute(1, true);
    EXPECT_EQ(body(), "<B><B></B>");
}

TEST_F(Fonts, WriteNothingForAnUnknownAttribute) {
    for (const std::int16_t code : std::to_array<std::int16_t>({0, 3, 5, 15, 16, -1})) {
        doc().setFontAttribute(code, true);
    }
    EXPECT_EQ(body(), "");
}

TEST_F(Fonts, StoreTheFontAgainForAnUnknownAttribute) {
    doc().setFontAttribute(1, true);
    doc().setFontAttribute(16, true);
    EXPECT_EQ(body(), "<B></B>");
}

TEST_F(Fonts, CloseTheirTagsInTheOrderOfOpening) {
    doc().setFontSize(14);
    doc().setFontAttribute(8, true);
    doc().setFontAttribute(4, true);
    doc().setFontAttribute(2, true);
    doc().setFontAttribute(1, true);
    EXPECT_EQ(body(),
              "<BASEFONT SIZE = 4><STRIKE><U><I><B>"
              "</BASEFONT></B></I></U></STRIKE>");
}

TEST_F(Fonts, AreClosedByANewFace) {
    doc().setFontAttribute(1, true);
    doc().setFontName(u"Courier New");
    doc().insertText(u"x");
    doc().setFontAttribute(1, true);
    EXPECT_EQ(body(), "<B></B>x<B></B>");
}

TEST_F(Fonts, LoseSizeAndAttributesWithANewFace) {
    doc().setFontSize(14);
    doc().setFontName(u"Courier New");
    doc().setFontAttribute(2, true);
    EXPECT_EQ(body(), "<BASEFONT SIZE = 4></BASEFONT><I></I>");
}

TEST_F(Fonts, NeverWriteTheFace) {
    doc().setFontName(u"Courier New");
    doc().insertText(u"x");
    EXPECT_EQ(body(), "x");
}

TEST_F(Fonts, AreClosedByAStyleBeforeTheOldStylesEnd) {
    html("TOCLevel", "0");
    open();
    doc().setStyle(u"Heading 2");
    doc().setFontAttribute(1, true);
    doc().setStyle(u"Normal");
    doc().insertText(u"x");
    EXPECT_EQ(body(), "<H2><B></B></H2>\nx");
}

TEST_F(Fonts, AreForgottenOnceClosed) {
    doc().setFontSize(14);
    doc().setFontAttribute(1, true);
    doc().setStyle(u"Normal");  // the style in force: only the font ends
    doc().setFontAttribute(2, true);
    EXPECT_EQ(body(), "<BASEFONT SIZE = 4><B></BASEFONT></B><I></I>");
}

TEST_F(Fonts, StayStoredWhenNothingOfThemIsLeft) {
    doc().setFontAttribute(1, true);
    doc().setFontAttribute(1, false);
    doc().setStyle(u"Normal");
    EXPECT_EQ(body(), "<B></B>");
}

TEST_F(Fonts, CloseASizeThatWasSetToZeroOnlyOnce) {
    doc().setFontSize(10);
    doc().setFontSize(0);
    EXPECT_EQ(body(), "<BASEFONT SIZE = 2></BASEFONT>");
}

class SectionFonts : public Fonts {};

TEST_F(SectionFonts, LeaveTheBodysAlone) {
    doc().setFontAttribute(1, true);
    doc().startHeader();
    doc().setFontAttribute(2, true);
    doc().endHeader();
    doc().setFontAttribute(4, true);
    EXPECT_EQ(body(), "<B><U></B></U>");
    EXPECT_EQ(header(), "<I></I>");
}

TEST_F(SectionFonts, CarryOnAfterTheyWereClosed) {
    doc().startHeader();
    doc().setFontAttribute(1, true);
    doc().setStyle(u"Normal");  // closes the font
    doc().setFontAttribute(2, true);
    doc().endHeader();
    EXPECT_EQ(header(), "<B></B><I></B></I>");
}

TEST_F(SectionFonts, CarryOnIntoTheNextBlock) {
    doc().startHeader();
    doc().setFontAttribute(1, true);
    doc().endHeader();
    doc().startHeader();
    doc().setFontAttribute(2, true);
    doc().endHeader();
    EXPECT_EQ(header(), "<I></B></I>");
}

class FontCalls : public testing::OpenDocumentTest {};

TEST_F(FontCalls, AreTracedWithTheirWords) {
    doc().setFontName(u"Courier New");
    doc().setFontSize(-4);
    doc().setFontAttribute(1, true);
    doc().setFontAttribute(2, false);
    doc().setFontAttribute(4, true);
    doc().setFontAttribute(8, false);
    doc().setFontAttribute(16, true);
    EXPECT_EQ(traced(),
              "dochtml->setFontName(\"Courier New\");\n"
              "dochtml->setFontSize(-4);\n"
              "dochtml->setFontAttribute(DocBold,TRUE);\n"
              "dochtml->setFontAttribute(DocItalic,FALSE);\n"
              "dochtml->setFontAttribute(DocUnderline,TRUE);\n"
              "dochtml->setFontAttribute(DocStrike,FALSE);\n"
              "dochtml->setFontAttribute(TRUE);\n");
}

}  // namespace
}  // namespace quillmark
