// Documents in UTF-8: what they write for every operation that takes a text or a name.

#include <gmock/gmock.h>

#include "driver/document_fixture.h"
#include "driver/encoding/naive_char_set.h"
#include "driver/encoding/scripts.h"

namespace quillmark::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr std::string_view headLine =
    "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=utf-8\">\n";

class Utf8Document : public DocumentTest {
protected:
    Utf8Document() {
        html("CharSet", "utf-8");
        renew();
    }
};

TEST_F(Utf8Document, SaysSoInItsHead) {
    open();
    doc().insertText(u"x");
    doc().close();
    EXPECT_THAT(out("rep.htm"), HasSubstr(headLine));
    EXPECT_THAT(out("rep.htm"), Not(HasSubstr("iso-8859-1")));
}

TEST_F(Utf8Document, SaysSoOnEveryPageThatTheDriverWrites) {
    html("Navig", "3");
    html("SupportOld", "true");
    open();
    doc().insertText(u"x");
    doc().insertPageBreak();
    doc().close();
    int pages = 0;
    for (const std::string& name : files.fileNames()) {
        if (name.ends_with(".htm")) {
            ++pages;
            EXPECT_THAT(bytes(name), HasSubstr(headLine)) << name;
        }
    }
    EXPECT_EQ(pages, 8);
}

TEST_F(Utf8Document, KeepsEveryScriptInEveryText) {
    for (const auto& [script, text] : scriptSamples) {
        const std::string utf8 = naiveUtf8(text);
        renew();
        open();
        trace.clear();
        const std::u16string name(text);
        doc().setOption(u"title", name);
        doc().startHeader();
        doc().insertText(name);
        doc().endHeader();
        doc().setStyle(name);
        doc().setFontName(name);
        doc().insertText(name + u"<");
        doc().insertTag(u"GUID" + name);
        doc().insertText(u"<a href=\"#GUID" + name + u"\">" + name + u"</a>");
        const std::string tag = "GUID" + utf8;
        EXPECT_EQ(traced(),
                  "dochtml->setOption(\"title\",\"" + utf8 +
                      "\");\ndochtml->startHeader();\ndochtml->insertText(\"" + utf8 +
                      "\");\ndochtml->endHeader();\ndochtml->setStyle(\"" + utf8 +
                      "\");\ndochtml->setFontName(\"" + utf8 + "\");\ndochtml->insertText(\"" +
                      utf8 + "<\");\ndochtml->insertTag(\"" + tag +
                      "\");\ncreated bookmark:" + tag + " as rep.htm#" + tag +
                      "\ndochtml->insertText(\"<a href=\"#" + tag + "\">" + utf8 +
                      "</a>\");\ndochtml->insertXref(\"" + utf8 + "\",\"" + tag + "\");\n")
            << script;
        doc().close();
        EXPECT_THAT(out("rep.htm"), HasSubstr("<TITLE>" + utf8 + "</TITLE>\n")) << script;
        EXPECT_EQ(between(out("rep.htm"), "<BODY  >\n", "<HR>\n"), utf8) << script;
        EXPECT_EQ(bodyOf("rep.htm"), utf8 + "<<a name=\"" + tag + "\"></a><A HREF=\"rep.htm#" +
                                         tag + "\">" + utf8 + "</A>")
            << script;
    }
}

TEST_F(Utf8Document, KeepsEveryScriptInItsContents) {
    html("Navig", "1");
    html("SupportOld", "true");
    for (const auto& [script, text] : scriptSamples) {
        const std::string utf8 = naiveUtf8(text);
        renew();
        open();
        doc().setStyle(u"Heading 1");
        doc().insertText(text);
        doc().insertEndl();
        doc().close();
        EXPECT_THAT(out("rep_toc.dat"), HasSubstr("(NODE \"" + utf8 + "\" \"rep_dtl.htm#toc1\""))
            << script;
        EXPECT_THAT(out("rep_scnt.htm"),
                    HasSubstr("<A HREF=\"rep_dtl.htm#toc1\">" + utf8 + "</a><BR>\n"))
            << script;
    }
}

TEST_F(Utf8Document, WritesAndLinksFilesByTheirNames) {
    for (const auto& [script, text] : scriptSamples) {
        const std::string utf8 = naiveUtf8(text);
        const std::string link = naiveLink(utf8);
        const std::u16string name(text);
        renew();
        files.put("C:\\in\\" + utf8 + "%1#.gif", "GIF");
        files.put("C:\\in\\" + utf8 + ".doc", "doc");
        doc().create(u"C:\\out\\" + name + u".htm");
        doc().insertText(u"x");
        doc().insertEndl();
        doc().insertEndl();
        doc().pushDirectory(name);
        doc().insertImage(u"C:\\in\\" + name + u"%1#.gif", u"");
        doc().insertXref(u"y", u"C:\\in\\" + name + u".doc");
        doc().insertFile(u"C:\\in\\" + name + u".doc", 0);
        doc().insertXref(u"z", u"Page 1");
        doc().close();
        EXPECT_TRUE(isWritten("C:\\out\\" + utf8 + ".htm")) << script;
        EXPECT_TRUE(isWritten("C:\\out\\pix\\" + utf8 + "%1#.gif")) << script;
        EXPECT_EQ(bodyOf(utf8 + "\\" + utf8 + "2.htm", 2),
                  "<IMG SRC=\"../pix/" + link +
                      "%251%23.gif\" ALIGN=\"BOTTOM\" BORDER=\"0\" >"
                      "<A HREF=\"../docs/" +
                      link +
                      ".doc\">y</A>"
                      "<A HREF=\"../docs/" +
                      link + ".doc\">" + utf8 +
                      ".doc</A>"
                      "<A HREF=\"../" +
                      link + ".htm#Page 1\">z</A>")
            << script;
    }
}

TEST_F(Utf8Document, EncodesAbsoluteLinksAfterTheDrive) {
    html("UseRelative", "false");
    files.put("C:\\in\\\xE4\xBE\xA1.doc", "");
    open();
    doc().insertXref(u"x", u"C:\\in\\\u4FA1.doc");
    EXPECT_EQ(body(), "<A HREF=\"file:///C|/in/%E4%BE%A1.doc\">x</A>");
}

TEST_F(Utf8Document, KeepsAHostsOwnHyperlinks) {
    open();
    doc().insertXref(u"x", u"http://h/\u4FA1%#");
    EXPECT_EQ(body(), "<A HREF=\"http://h/\xE4\xBE\xA1%#\">x</A>");
}

TEST_F(Utf8Document, ReadsItsSettingsInUtf8) {
    html("HtmlPixDir", "\xE5\x9B\xB3");
    html("BodyTags", "ID=\"\xE4\xBE\xA1\"");
    files.put("C:\\inst\\\xE4\xBE\xA1%.css", "P { }\n");
    html("StyleSheet", "\xE4\xBE\xA1%.css");
    files.put("C:\\a.gif", "GIF");
    open();
    doc().insertImage(u"C:\\a.gif", u"");
    doc().close();
    EXPECT_THAT(out("rep.htm"), HasSubstr("HREF=\"%E4%BE%A1%25.css\" >"));
    EXPECT_THAT(out("rep.htm"), HasSubstr("<BODY ID=\"\xE4\xBE\xA1\" >"));
    EXPECT_THAT(out("rep.htm"), HasSubstr("<IMG SRC=\"%E5%9B%B3/a.gif\""));
    EXPECT_TRUE(isWritten("C:\\out\\\xE5\x9B\xB3\\a.gif"));
}

TEST_F(Utf8Document, TakesOverridesWithEveryCharacter) {
    html("CharSet", "");
    renew();
    doc().overrideRegistry(u"Html", u"BodyTags", u"ID=\"\u4FA1\U0001F600\"", 2);
    doc().overrideRegistry(u"HTML", u"charset", u"UTF-8", 2);
    open();
    doc().insertText(u"\u4FA1");
    doc().close();
    EXPECT_THAT(out("rep.htm"), HasSubstr("<BODY ID=\"\xE4\xBE\xA1\xF0\x9F\x98\x80\" >"));
    EXPECT_THAT(out("rep.htm"), HasSubstr(">\xE4\xBE\xA1\n"));
}

TEST_F(Utf8Document, NarrowsOverridesOfAnEightBitDocument) {
    html("CharSet", "");
    renew();
    doc().overrideRegistry(u"Html", u"BodyTags", u"\u00E4\u4FA1\U0001F600", 2);
    open();
    doc().insertText(u"x");
    doc().close();
    EXPECT_THAT(out("rep.htm"), HasSubstr("<BODY \xE4??? >"));
}

TEST_F(Utf8Document, ReplacesHalvesOfPairs) {
    const std::u16string halves = {u'a', 0xD83D, u'b', 0xDE00, 0xD83D, 0xDE00, 0xDC00};
    open();
    doc().insertText(halves);
    EXPECT_EQ(body(),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xF0\x9F\x98\x80\xEF\xBF\xBD");
}

TEST_F(Utf8Document, TakesAFileInUtf8AsItIs) {
    files.put("C:\\a.txt", "\xEF\xBB\xBF\xE4\xBE\xA1<\r\n\xEF\xBB\xBFz\n");
    open();
    doc().insertFile(u"C:\\a.txt", 3);
    EXPECT_EQ(body(), "\xE4\xBE\xA1<<BR>\n\xEF\xBB\xBFz");
}

TEST_F(Utf8Document, ConvertsAnyOtherFileFromTheCodePage) {
    files.put("C:\\a.txt", "\xE4\n\x80\xC3\xA4\n");
    open();
    doc().insertFile(u"C:\\a.txt", 3);
    EXPECT_EQ(body(), "\xC3\xA4<BR>\n\xE2\x82\xAC\xC3\x83\xC2\xA4");
}

TEST_F(Utf8Document, CutsALongLineBetweenCharacters) {
    std::string line;
    for (int i = 0; i < 2001; ++i) {
        line += "\xE4\xBE\xA1";
    }
    files.put("C:\\a.txt", line);
    open();
    doc().insertFile(u"C:\\a.txt", 3);
    EXPECT_TRUE(body() == line.substr(0, 6000) + "<BR>\n\xE4\xBE\xA1");
}

TEST_F(Utf8Document, KeepsTextsOverASecondDocumentInAnotherEncoding) {
    html("CharSet", "");
    renew();
    open();
    doc().setOption(u"title", u"Gr\u00F6\u00DFe");
    doc().startFooter();
    doc().insertText(u"\u00E4");
    doc().endFooter();
    doc().setStyle(u"\u00FC");
    doc().insertXref(u"later", u"nowhere");
    doc().insertPageBreak();
    doc().overrideRegistry(u"Html", u"CharSet", u"UTF-8", 2);
    doc().create(u"C:\\out\\\u4FA1.htm");
    doc().insertText(u"\u4FA1");
    doc().close();
    const std::string held = out("rep.htm");
    EXPECT_THAT(held, HasSubstr("text/html; iso-8859-1"));
    EXPECT_THAT(held, HasSubstr("<TITLE>Gr\xF6\xDF"
                                "e</TITLE>"));
    const std::string second =
        out("\xE4\xBE\xA1"
            "2.htm");
    EXPECT_THAT(second, HasSubstr(headLine));
    EXPECT_THAT(second, HasSubstr("<TITLE>Gr\xC3\xB6\xC3\x9F"
                                  "e</TITLE>"));
    EXPECT_THAT(second, HasSubstr("<HR>\xC3\xA4\n</BODY>"));
}

TEST_F(Utf8Document, KeepsTheEncodingOfACreateThatFailed) {
    html("CharSet", "");
    renew();
    doc().overrideRegistry(u"Html", u"CharSet", u"UTF-8", 2);
    doc().overrideRegistry(u"Html", u"StyleSheet", u"C:\\\u4FA1.css", 2);
    EXPECT_THROW(open(), OrxException);
    EXPECT_THAT(exceptions.messages().back(), HasSubstr("C:\\\xE4\xBE\xA1.css"));
    trace.clear();
    doc().insertText(u"\u4FA1");
    EXPECT_EQ(traced(), "dochtml->insertText(\"\xE4\xBE\xA1\");\n");
}

TEST_F(Utf8Document, DoesNotTouchOtherDocuments) {
    DocHtml other;
    other.overrideRegistry(u"Html", u"CharSet", u"", 2);
    other.create(u"C:\\out\\other.htm");
    open();
    other.insertText(u"\u00E4\u4FA1");
    doc().insertText(u"\u00E4\u4FA1");
    other.close();
    EXPECT_EQ(bodyOf("other.htm"), "\xE4?");
    EXPECT_EQ(body(), "\xC3\xA4\xE4\xBE\xA1");
}

TEST_F(Utf8Document, ReportsUnresolvedReferencesWithTheirNames) {
    open();
    doc().insertXref(u"x", u"\u4FA1");
    trace.clear();
    doc().close();
    EXPECT_THAT(traced(), HasSubstr("  \xE4\xBE\xA1 near line 1 <A \xE4\xBE\xA1>\n"));
}

}  // namespace
}  // namespace quillmark::testing
