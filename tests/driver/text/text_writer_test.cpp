#include "driver/document_fixture.h"
#include "support/environment_variable.h"

namespace quillmark {
namespace {

class Texts : public testing::OpenDocumentTest {};

TEST_F(Texts, AreEscapedAndWritten) {
    doc().insertText(u"a\tb  c\nd <i>&amp;</i>");
    EXPECT_EQ(body(), "a&nbsp;&nbsp; b&nbsp; c<BR>\nd <i>&amp;</i>");
}

TEST_F(Texts, PassMarkupThroughWhenTheSettingIsOn) {
    html("PassThrough", "1");
    open();
    doc().insertText(u"<b>x</b> a<<b");
    EXPECT_EQ(body(), "<b>x</b> a&lt;&lt;b");
}

TEST_F(Texts, AreConvertedToTheCodePage) {
    doc().insertText(u"\u00e4\u20ac\u4e00|\U0001F600|");
    EXPECT_EQ(body(), "\xe4\x80?|\?\?|");
}

TEST_F(Texts, TurnEachLoneSurrogateIntoAQuestionMark) {
    const char16_t lone[] = {u'a', 0xD800, u'b', 0xDC00, u'c', 0};
    doc().insertText(lone);
    EXPECT_EQ(body(), "a?b?c");
}

TEST_F(Texts, KeepAZeroByte) {
    doc().insertText(std::u16string_view(u"a\0b", 3));
    EXPECT_EQ(body(), std::string("a\0b", 3));
}

TEST_F(Texts, ReturnZeroAndTraceTheirCall) {
    EXPECT_EQ(doc().insertText(u"say \"a\nb\""), 0);
    EXPECT_EQ(doc().insertText({}), 0);
    EXPECT_EQ(doc().insertEndl(), 0);
    EXPECT_EQ(doc().insertField(2), 0);
    EXPECT_EQ(traced(),
              "dochtml->insertText(\"say \"a\nb\"\");\n"
              "dochtml->insertText(\"\");\n"
              "dochtml->insertEndl();\n"
              "dochtml->insertField(2);\n");
}

TEST_F(Texts, GoToTheHeaderWhileItIsOpen) {
    doc().insertText(u"a");
    doc().startHeader();
    doc().insertText(u"h\t");
    doc().insertEndl();
    doc().endHeader();
    doc().insertText(u"b");
    EXPECT_EQ(body(), "ab");
    EXPECT_EQ(header(), "h&nbsp;&nbsp; <BR>\n");
}

class LineEnds : public testing::OpenDocumentTest {};

TEST_F(LineEnds, AreBreaks) {
    doc().insertEndl();
    doc().insertText(u"a");
    doc().insertEndl();
    EXPECT_EQ(body(), "<BR>\na<BR>\n");
}

class BodyFields : public testing::OpenDocumentTest {
protected:
    BodyFields() { setting("Settings", "TestLevel", "1"); }
    EnvironmentVariable clock{"SOURCE_DATE_EPOCH", "1718281845"};  // 2024-06-13 12:30:45
};

TEST_F(BodyFields, ShowDateAndTimeWhateverTheTestLevel) {
    doc().insertField(1);
    doc().insertText(u" ");
    doc().insertField(2);
    EXPECT_EQ(body(), "06/13/24 12:30:45");
}

TEST_F(BodyFields, ShowFileNameAndPageNumber) {
    doc().insertPageBreak();
    doc().insertPageBreak();
    doc().insertField(3);
    doc().insertField(4);
    doc().close();
    EXPECT_EQ(bodyOf("rep3.htm", 3), "rep3.htm3");
}

TEST_F(BodyFields, ShowNothingOfAnUnknownKind) {
    for (const int kind : {0, 5, 9, -1, 32767}) {
        doc().insertField(static_cast<std::int16_t>(kind));
    }
    EXPECT_EQ(body(), "");
}

TEST_F(BodyFields, AreNotEscaped) {
    open(u"C:\\out\\a  b.htm");
    doc().insertField(3);
    doc().close();
    EXPECT_EQ(bodyOf("a  b.htm"), "a  b.htm");
}

}  // namespace
}  // namespace quillmark
