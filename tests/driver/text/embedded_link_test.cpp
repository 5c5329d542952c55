#include "driver/text/embedded_link.h"

#include "driver/document_fixture.h"

namespace quillmark {
namespace {

TEST(EmbeddedLink, IsCutIntoItsFourParts) {
    const auto link = findEmbeddedLink("see <a href=\"#GUID-12\">Class A</a> now");
    ASSERT_TRUE(link.has_value());
    EXPECT_EQ(link->before, "see ");
    EXPECT_EQ(link->target, "GUID-12");
    EXPECT_EQ(link->text, "Class A");
    EXPECT_EQ(link->after, " now");
}

TEST(EmbeddedLink, MayBeTheWholeTextAndEmpty) {
    const auto link = findEmbeddedLink("<a href=\"#GUID\"></a>");
    ASSERT_TRUE(link.has_value());
    EXPECT_EQ(link->before, "");
    EXPECT_EQ(link->target, "GUID");
    EXPECT_EQ(link->text, "");
    EXPECT_EQ(link->after, "");
}

TEST(EmbeddedLink, IsNotFoundWhenAPieceIsMissing) {
    EXPECT_FALSE(findEmbeddedLink(""));
    EXPECT_FALSE(findEmbeddedLink("no link"));
    EXPECT_FALSE(findEmbeddedLink("<a href=\"#other\">x</a>"));
    EXPECT_FALSE(findEmbeddedLink("<a href=\"GUID\">x</a>"));
    EXPECT_FALSE(findEmbeddedLink("<A HREF=\"#GUID\">x</A>"));
    EXPECT_FALSE(findEmbeddedLink("<a href=\"#guid\">x</a>"));
    EXPECT_FALSE(findEmbeddedLink("<a href=\"#GUID>x</a>"));
    EXPECT_FALSE(findEmbeddedLink("<a href=\"#GUID-1\">x</A>"));
    EXPECT_FALSE(findEmbeddedLink("</a>\"><a href=\"#GUID-1"));
}

TEST(EmbeddedLink, LooksForEachPieceAfterThePreviousOne) {
    const auto link = findEmbeddedLink("a\">b</a><a href=\"#GUID-1\" x\">t\">u</a>v</a>");
    ASSERT_TRUE(link.has_value());
    EXPECT_EQ(link->before, "a\">b</a>");
    EXPECT_EQ(link->target, "GUID-1\" x");
    EXPECT_EQ(link->text, "t\">u");
    EXPECT_EQ(link->after, "v</a>");
}

class TextWithLinks : public testing::OpenDocumentTest {};

TEST_F(TextWithLinks, BecomesCallsOfItsPieces) {
    doc().insertText(u"see <a href=\"#GUID-12\">Class A</a> now");
    EXPECT_EQ(traced(),
              "dochtml->insertText(\"see <a href=\"#GUID-12\">Class A</a> now\");\n"
              "dochtml->insertText(\"see \");\n"
              "dochtml->insertXref(\"Class A\",\"GUID-12\");\n"
              "dochtml->insertText(\" now\");\n");
    EXPECT_EQ(written(), "see Class A now");
}

TEST_F(TextWithLinks, MakesNoCallOfAnEmptyPiece) {
    doc().insertText(u"<a href=\"#GUID-1\">x</a>");
    EXPECT_EQ(traced(),
              "dochtml->insertText(\"<a href=\"#GUID-1\">x</a>\");\n"
              "dochtml->insertXref(\"x\",\"GUID-1\");\n");
}

TEST_F(TextWithLinks, FindsEveryLink) {
    doc().insertTag(u"GUID-1");
    doc().insertTag(u"GUID-2");
    traced();
    doc().insertText(u"<a href=\"#GUID-1\">x</a>, <a href=\"#GUID-2\">y</a>");
    EXPECT_EQ(traced(),
              "dochtml->insertText(\"<a href=\"#GUID-1\">x</a>, <a href=\"#GUID-2\">y</a>\");\n"
              "dochtml->insertXref(\"x\",\"GUID-1\");\n"
              "dochtml->insertText(\", <a href=\"#GUID-2\">y</a>\");\n"
              "dochtml->insertText(\", \");\n"
              "dochtml->insertXref(\"y\",\"GUID-2\");\n");
    EXPECT_EQ(written(),
              "<a name=\"GUID-1\"></a><a name=\"GUID-2\"></a>"
              "<A HREF=\"rep.htm#GUID-1\">x</A>, <A HREF=\"rep.htm#GUID-2\">y</A>");
}

TEST_F(TextWithLinks, EscapesTheTextOfALink) {
    doc().insertText(u"<a href=\"#GUID-1\">a  b\nc</a>");
    EXPECT_EQ(written(), "a&nbsp; b<BR>\nc");
}

TEST_F(TextWithLinks, WritesAnIncompleteLinkAsText) {
    doc().insertText(u"<a href=\"#GUID-1\">x");
    EXPECT_EQ(traced(), "dochtml->insertText(\"<a href=\"#GUID-1\">x\");\n");
    EXPECT_EQ(written(), "<a href=\"#GUID-1\">x");
}

TEST_F(TextWithLinks, KeepsAHundredThousandLinksInOneText) {
    std::u16string text;
    for (int i = 0; i < 100000; ++i) {
        text += u"<a href=\"#GUID-1\">x</a>";
    }
    doc().insertTag(u"GUID-1");
    trace.clear();
    const auto traceEach = Trace::setListener(nullptr);  // a quadratic amount of trace otherwise
    doc().insertText(text);
    Trace::setListener(traceEach);
    const std::string link = "<A HREF=\"rep.htm#GUID-1\">x</A>";
    EXPECT_EQ(written().size(),
              std::string("<a name=\"GUID-1\"></a>").size() + 100000 * link.size());
}

}  // namespace
}  // namespace quillmark
