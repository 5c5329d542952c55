#include <array>
#include <limits>

#include "driver/document_fixture.h"

namespace quillmark {
namespace {

/// Every operation that takes a text, with that text everywhere.
void callAll(DocHtml& document, std::u16string_view text) {
    EXPECT_EQ(document.insertText(text), 0);
    EXPECT_EQ(document.insertTag(text), 0);
    EXPECT_EQ(document.insertXref(text, text), 0);
    EXPECT_EQ(document.setFontName(text), 0);
    EXPECT_EQ(document.insertFile(text, 1), 0);
    EXPECT_EQ(document.insertFile(text, 3), 0);
    EXPECT_EQ(document.insertImage(text, text), 0);
    EXPECT_EQ(document.setOption(text, text), 0);
    EXPECT_EQ(document.overrideRegistry(text, text, text, 1), 0);
    EXPECT_EQ(document.startFile(text), 0);
    EXPECT_EQ(document.setStyle(text), 0);
    EXPECT_EQ(document.insertText(text), 0);
}

/// Every operation that takes a number, with that number everywhere.
void callAll(DocHtml& document, std::int32_t number) {
    const auto small = static_cast<std::int16_t>(number);
    EXPECT_EQ(document.insertField(small), 0);
    EXPECT_EQ(document.setFontSize(small), 0);
    EXPECT_EQ(document.setFontAttribute(small, true), 0);
    EXPECT_EQ(document.setTextAlign(small), 0);
    EXPECT_EQ(document.insertFile(u"gone", small), 0);
    EXPECT_EQ(document.overrideRegistry(u"Html", u"Gone", u"x", small), 0);
    EXPECT_EQ(document.insertMark(number, false), 0);
    EXPECT_EQ(document.insertMark(number, true), 0);
    EXPECT_EQ(document.setOrientation(small), 0);
    EXPECT_EQ(document.setTableRowHeight(number), 0);
    EXPECT_EQ(document.insertDiagram(number, small, small), 0);
}

class BadInput : public testing::OpenDocumentTest {
protected:
    /// What the bad input must not have harmed.
    void expectPageGoesOn() {
        doc().setStyle(u"Normal");
        doc().insertText(u"still here");
        doc().close();
        EXPECT_NE(out("rep.htm").find("still here"), std::string::npos);
        EXPECT_EQ(exceptions.messages(), std::vector<std::string>{});
    }
};

TEST_F(BadInput, OfNoTextIsAbsorbed) {
    callAll(doc(), std::u16string_view());
    callAll(doc(), u"");
    expectPageGoesOn();
}

TEST_F(BadInput, OfLoneSurrogatesIsAbsorbed) {
    const std::u16string text = {0xD800, 0xDFFF, 0xDBFF, 0xD800, 0};
    callAll(doc(), text);
    expectPageGoesOn();
}

TEST_F(BadInput, OfEveryUnitIsAbsorbed) {
    std::u16string text;
    for (char32_t unit = 0; unit < 0x10000; ++unit) {
        text.push_back(static_cast<char16_t>(unit));
    }
    callAll(doc(), text);
    expectPageGoesOn();
}

TEST_F(BadInput, OfFortyThousandCharactersIsAbsorbed) {
    callAll(doc(), std::u16string(40000, u'n'));
    doc().pushDirectory(std::u16string(40000, u'd'));
    doc().pushDirectory(u"");
    expectPageGoesOn();
}

TEST_F(BadInput, OfFortyThousandSeparatorsIsAbsorbed) {
    callAll(doc(), std::u16string(40000, u'\\'));
    doc().pushDirectory(std::u16string(40000, u'\\'));
    doc().pushDirectory(std::u16string(40000, u'/'));
    doc().pushDirectory(u"");
    expectPageGoesOn();
}

TEST_F(BadInput, OfMarkupIsAbsorbed) {
    callAll(doc(), u"</BODY></HTML><A HREF=\"\n\"><a href=\"#GUID\"></a>");
    expectPageGoesOn();
}

TEST_F(BadInput, OfExtremeNumbersIsAbsorbed) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number :
         {Limits::min(), -32769, -32768, -1, 0, 32767, 32768, 65535, Limits::max()}) {
        callAll(doc(), number);
    }
    expectPageGoesOn();
}

TEST_F(BadInput, OfWildStylesIsAbsorbed) {
    for (const std::u16string_view style :
         {u"Heading 99999999999999999999", u"Heading -99999999999999999999",
          u"List Number 99999999999", u"List Bullet 99999999999", u"List Number -1"}) {
        doc().setStyle(style);
        doc().startTable();
        doc().addCell();
        doc().insertText(u"x");
        doc().endTable();
    }
    expectPageGoesOn();
}

TEST_F(BadInput, OfUnbalancedCallsIsAbsorbed) {
    for (int i = 0; i < 50; ++i) {
        doc().endTable();
    }
    doc().addRow();
    doc().addCell();
    doc().endHeader();
    doc().endFooter();
    doc().endTOCEntry();
    doc().popDirectory();
    for (int i = 0; i < 50; ++i) {
        doc().startTable();
        doc().addCell();
    }
    expectPageGoesOn();
}

TEST_F(BadInput, OfWildSettingsIsAbsorbed) {
    for (const char* const name :
         {"Navig", "TOCLevel", "UseRelative", "SupportOld", "ShowIcons", "DiagramType"}) {
        html(name, "99999999999999999999 or so");
    }
    setting("Settings", "TestLevel", "-99999999999999999999");
    open();
    doc().setStyle(u"Heading 3");
    doc().insertText(u"still here");
    EXPECT_EQ(doc().close(), 0);
}

class BadNames : public testing::DocumentTest {};

TEST_F(BadNames, OfTheDocumentAreTaken) {
    for (const std::u16string_view name :
         {u"", u".", u"..", u"\\", u"C:", u"C:\\", u".htm", u"\\\\\\", u"a\nb"}) {
        renew();
        EXPECT_EQ(doc().create(name), 0);
        doc().insertText(u"x");
        doc().pushDirectory(u"sub");
        doc().insertPageBreak();
        EXPECT_EQ(doc().close(), 0);
    }
}

TEST_F(BadNames, OfFortyThousandCharactersAreTaken) {
    EXPECT_EQ(doc().create(u"C:\\" + std::u16string(40000, u'n') + u"\\rep.htm"), 0);
    doc().pushDirectory(u"a\\b\\c");
    EXPECT_EQ(doc().close(), 0);
    EXPECT_TRUE(isWritten("C:\\" + std::string(40000, 'n') + "\\a\\rep.htm"));
}

}  // namespace
}  // namespace quillmark
