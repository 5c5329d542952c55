#include "driver/document_fixture.h"
#include "page/html_head.h"
#include "page/links/links.h"

namespace quillmark {
namespace {

class Lifecycle : public testing::DocumentTest {
protected:
    /// The whole file of a page that was released without being ended.
    static std::string unfinished(const std::string& body) {
        return htmlHead("", "", "") + body + "\n</HTML>\n";
    }
};

TEST_F(Lifecycle, NamesPagesByTheDocument) {
    open(u"C:\\out\\rep");
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\rep.htm"));
    renew();
    open(u"C:\\out\\rep.html");
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\rep.html"));
    renew();
    open(u"C:/out/sub/rep.v1.xhtml");
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\sub\\rep.v1.xhtml"));
}

TEST_F(Lifecycle, MakesTheOutputDirectoryWithItsPictures) {
    open(u"C:\\new\\deep\\rep.htm");
    EXPECT_TRUE(files.directoryExists("C:\\new\\deep\\pix"));
    EXPECT_FALSE(files.directoryExists("C:\\new\\deep\\docs"));
    EXPECT_EQ(bytes("C:\\new\\deep\\default.css"), "P { }\n");
}

TEST_F(Lifecycle, SetsTheDefaultBaseOfLinks) {
    open();
    EXPECT_EQ(links::defaultBase(), "C:\\out");
    open(u"D:\\rep.htm");
    EXPECT_EQ(links::defaultBase(), "D:");
}

TEST_F(Lifecycle, WritesAPageWithoutAnyContent) {
    open();
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), "");
}

TEST_F(Lifecycle, TracesTheEndOfAPageWithLinesOnly) {
    doc().close();
    EXPECT_EQ(traced(), "");
    open();
    traced();
    doc().close();
    EXPECT_EQ(traced(), "dochtml->close();\ncreated bookmark:toc1 as rep.htm#toc1\n");
    doc().close();
    EXPECT_EQ(traced(), "");
}

TEST_F(Lifecycle, ClosesWhatItsHostNeverClosed) {
    open();
    doc().startHeader();
    doc().insertText(u"header");
    doc().endHeader();
    doc().startFooter();
    doc().insertText(u"footer");
    doc().endFooter();
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().insertText(u"b");
    traced();
    renew();
    EXPECT_EQ(traced(), "dochtml->close();\ncreated bookmark:toc2 as rep2.htm#toc2\n");
    EXPECT_NE(out("rep.htm").find("header<HR>"), std::string::npos);
    EXPECT_NE(out("rep2.htm")
                  .find("<BODY  >\n<a name=\"toc2\"></a><a name=\"Page 2\"></a>b"
                        "\n\n</BODY>"),
              std::string::npos)
        << "the last page has neither header nor footer";
}

TEST_F(Lifecycle, ClosesWhileASectionIsStillOpen) {
    open();
    doc().insertText(u"a");
    doc().startFooter();
    doc().insertText(u"f");
    renew();
    EXPECT_EQ(bodyOf("rep.htm"), "a");
}

TEST_F(Lifecycle, WritesHeldPagesWhenTheObjectIsReleased) {
    open();
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    renew();
    EXPECT_EQ(bodyOf("rep.htm"), "x");
}

TEST_F(Lifecycle, LeavesNothingOfADocumentNeverOpened) {
    renew();
    EXPECT_EQ(traced(), "");
    EXPECT_EQ(exceptions.messages(), std::vector<std::string>{});
}

const std::vector<std::string> namelessPage = {"Exception throw: Error opening file: \n",
                                               "Exception catch: Error opening file: \n"};

TEST_F(Lifecycle, HasNoFileForWhatComesBeforeCreate) {
    doc().insertText(u"a");
    doc().insertTag(u"t");
    doc().insertXref(u"x", u"t");
    doc().startTable();
    doc().addCell();
    doc().close();
    EXPECT_EQ(exceptions.messages(), namelessPage);
    open();
    doc().insertText(u"b");
    EXPECT_EQ(body().find('a'), std::string::npos);
}

TEST_F(Lifecycle, HasNoFileForWhatComesAfterClose) {
    open();
    doc().close();
    const std::string page = out("rep.htm");
    doc().insertText(u"late");
    doc().insertXref(u"x", u"gone");
    doc().close();
    EXPECT_EQ(exceptions.messages(), namelessPage);
    EXPECT_EQ(out("rep.htm"), page);
}

TEST_F(Lifecycle, DropsANamelessPageWithTheObject) {
    doc().insertText(u"a");
    renew();
    EXPECT_EQ(exceptions.messages(), namelessPage);
}

TEST_F(Lifecycle, DropsAPageThatASecondCreateFinds) {
    open();
    doc().insertText(u"a");
    open(u"C:\\out\\other.htm");
    EXPECT_EQ(out("rep.htm"), unfinished("<a name=\"Page 1\"></a>a"));
    doc().insertText(u"b");
    doc().close();
    EXPECT_EQ(bodyOf("other.htm"), "b");
}

TEST_F(Lifecycle, CountsPagesOnOverASecondCreate) {
    open();
    doc().insertPageBreak();
    doc().insertPageBreak();
    doc().close();
    open(u"C:\\out\\other.htm");
    doc().insertText(u"b");
    doc().close();
    EXPECT_EQ(bodyOf("other3.htm", 3), "b");
}

TEST_F(Lifecycle, LeavesTheStateAsItWasAtASecondCreate) {
    open();
    doc().setOption(u"title", u"Title");
    doc().pushDirectory(u"sub");
    doc().startHeader();
    doc().insertText(u"h");
    doc().endHeader();
    doc().setStyle(u"Heading 1");
    doc().setFontAttribute(1, true);
    doc().close();
    open(u"C:\\out\\other.htm");
    doc().close();
    const std::string page = out("sub\\other.htm");
    EXPECT_NE(page.find("<TITLE>Title</TITLE>"), std::string::npos);
    EXPECT_NE(page.find("h<HR>"), std::string::npos);
    EXPECT_NE(page.find("<H1><B></B></H1>\n"), std::string::npos);
}

TEST_F(Lifecycle, ReadsTheSettingsAgainAtASecondCreate) {
    open();
    doc().close();
    html("BodyTags", "BGCOLOR=red");
    open();
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY BGCOLOR=red >\n"), std::string::npos);
}

TEST_F(Lifecycle, WritesHeldPagesBeforeASecondCreate) {
    open();
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    doc().insertTOC();
    doc().insertPageBreak();
    traced();
    open(u"C:\\out\\other.htm");
    EXPECT_EQ(traced(),
              "dochtml->create(\"C:\\out\\other.htm\");\n"
              "Unresolved references on page C:\\out\\rep.htm\n"
              "  gone near line 1 <A gone>\n  gone near line 1 </A>\n"
              "Unresolved references on page C:\\out\\rep2.htm\n"
              "  TOC near line 1\n"
              "Unresolved references on page C:\\out\\rep3.htm\n"
              "  TOPOFPAGE near line 1\n"
              "created bookmark:Page 3 as other3.htm#Page 3\n");
    EXPECT_EQ(bodyOf("rep.htm"), "x");
}

TEST_F(Lifecycle, CountsAnchorsAnewAtASecondCreate) {
    open();
    doc().startTOCEntry();
    doc().insertText(u"a");
    doc().close();
    open(u"C:\\out\\other.htm");
    doc().insertText(u"in no entry");
    doc().startTOCEntry();
    EXPECT_NE((doc().close(), out("other.htm")).find("<a name=\"toc1\"></a>"), std::string::npos);
}

TEST_F(Lifecycle, KeepsTwoDocumentsApart) {
    DocHtml other;
    open();
    other.create(u"C:\\out\\other.htm");
    doc().setStyle(u"Heading 1");
    doc().insertText(u"a");
    other.insertText(u"b");
    doc().insertTag(u"target");
    other.insertXref(u"x", u"target");
    doc().startHeader();
    other.insertText(u"c");
    other.close();
    EXPECT_EQ(bodyOf("other.htm"), "bxc");
    doc().endHeader();
    EXPECT_EQ(body(), "<H1><a name=\"toc1\"></a>a<a name=\"target\"></a></H1>\n");
}

TEST_F(Lifecycle, KnowsOnlyTheTitleOfAllOptions) {
    open();
    doc().setOption(u"title", u"A < B");
    doc().setOption(u"Title", u"no");
    doc().setOption(u"title ", u"no");
    doc().setOption(u"", u"no");
    doc().close();
    EXPECT_NE(out("rep.htm").find("<TITLE>A < B</TITLE>"), std::string::npos);
}

TEST_F(Lifecycle, AnswersWhatItIs) {
    std::u16string text;
    EXPECT_EQ(doc().getDocType(text), 0);
    EXPECT_EQ(text, u"Html");
    EXPECT_EQ(doc().getPropPages(text), 0);
    EXPECT_EQ(text, u"{474BDD93-0170-11D3-A6BF-00104B2AEFE1}");
}

TEST_F(Lifecycle, AcceptsWhatHasNoEffect) {
    open();
    traced();
    EXPECT_EQ(doc().start(), 0);
    EXPECT_EQ(doc().stop(), 0);
    EXPECT_EQ(doc().setOrientation(2), 0);
    EXPECT_EQ(doc().startFile(u"C:\\x"), 0);
    EXPECT_EQ(doc().insertDiagram(-1, 100, -100), 0);
    EXPECT_EQ(traced(), "");
    EXPECT_EQ(body(), "");
}

class StyleSheets : public Lifecycle {
protected:
    /// The document's style-sheet link, "none" without one.
    std::string link() {
        doc().close();
        const std::string page = out("rep.htm");
        return page.find("STYLESHEET") == std::string::npos
                   ? "none"
                   : testing::between(page, "TYPE=\"text/css\" HREF=\"", "\" >\n");
    }
};

TEST_F(StyleSheets, LieNextToTheDocument) {
    open();
    EXPECT_EQ(out("default.css"), "P { }\n");
    EXPECT_EQ(link(), "default.css");
}

TEST_F(StyleSheets, ByABareNameAreTheInstallations) {
    files.put("C:\\inst\\own.css", "own");
    html("StyleSheet", "own.css");
    open();
    EXPECT_EQ(out("own.css"), "own");
    EXPECT_EQ(link(), "own.css");
}

TEST_F(StyleSheets, ByAPathAreTakenFromThere) {
    files.put("D:\\css\\own.css", "own");
    html("StyleSheet", "D:\\css\\own.css");
    open();
    EXPECT_EQ(out("own.css"), "own");
}

TEST_F(StyleSheets, MayBeNone) {
    files.deleteFile("C:\\inst\\default.css");
    html("StyleSheet", "");
    open();
    EXPECT_EQ(link(), "none");
}

TEST_F(StyleSheets, ThatMustNotBeCopiedAreLinkedWhereTheyLie) {
    html("DontCopy", ".css");
    open();
    EXPECT_EQ(out("default.css"), "(none)");
    EXPECT_EQ(link(), "../inst/default.css");
}

TEST_F(StyleSheets, AreLinkedRelativeEvenWhenLinksAreAbsolute) {
    html("UseRelative", "false");
    open();
    EXPECT_EQ(link(), "default.css");
}

TEST_F(StyleSheets, ThatAreMissingEndCreate) {
    html("StyleSheet", "gone.css");
    try {
        doc().create(u"C:\\out\\rep.htm");
        FAIL() << "nothing was thrown";
    } catch (const OrxException& problem) {
        EXPECT_EQ(problem.reasonText(), "Html style sheet does not exist.\nC:\\inst\\gone.css");
    }
    EXPECT_EQ(exceptions.messages(),
              (std::vector<std::string>{"Exception throw: Html style sheet does not exist.\n"
                                        "C:\\inst\\gone.css\n"}));
    EXPECT_EQ(traced(), "dochtml->create(\"C:\\out\\rep.htm\");\n");
    EXPECT_TRUE(files.directoryExists("C:\\out\\pix")) << "what came before is done";
}

TEST_F(StyleSheets, ThatAreMissingLeaveAnObjectThatCanBeUsed) {
    html("StyleSheet", "gone.css");
    EXPECT_THROW(doc().create(u"C:\\out\\rep.htm"), OrxException);
    EXPECT_EQ(doc().insertText(u"lost"), 0);
    EXPECT_EQ(doc().insertPageBreak(), 0);
    html("StyleSheet", "default.css");
    open();
    doc().insertText(u"kept");
    doc().close();
    EXPECT_EQ(bodyOf("rep2.htm", 2), "kept");
}

TEST_F(StyleSheets, ThatAreMissingAreLinkedInTheInstallationAllTheSame) {
    html("StyleSheet", "gone.css");
    EXPECT_THROW(doc().create(u"C:\\out\\rep.htm"), OrxException);
    doc().pushDirectory(u"x");
    doc().insertText(u"a");
    doc().close();
    EXPECT_NE(out("x\\rep.htm").find("HREF=\"../../inst/gone.css\" >\n"), std::string::npos);
}

TEST_F(StyleSheets, ThatAreMissingLeaveAnOpenEntryOpen) {
    open();
    doc().startTOCEntry();
    html("StyleSheet", "gone.css");
    EXPECT_THROW(doc().create(u"C:\\out\\rep.htm"), OrxException);
    doc().insertText(u"collected");
    doc().endTOCEntry();
    EXPECT_EQ(contents(), "<A HREF=\"rep.htm#toc1\">collected</a><BR>\n");
}

TEST_F(StyleSheets, ThatAreFoundCloseAnOpenEntry) {
    open();
    doc().startTOCEntry();
    open();
    doc().insertText(u"not collected");
    doc().endTOCEntry();
    EXPECT_EQ(contents(), "<A HREF=\"rep.htm#Page 1\">Page 1</a><BR>\n");
}

TEST_F(StyleSheets, ThatAreADirectoryAreMissing) {
    files.makeDirectories("C:\\inst\\dir.css");
    html("StyleSheet", "dir.css");
    EXPECT_THROW(doc().create(u"C:\\out\\rep.htm"), OrxException);
}

}  // namespace
}  // namespace quillmark
