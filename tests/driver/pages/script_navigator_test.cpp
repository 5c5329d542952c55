// Documents with the setting "ScriptNavigator".

#include <map>
#include <string>

#include "driver/document_fixture.h"
#include "support/failing_file_system.h"

namespace quillmark::testing {

namespace {

const std::string headLines =
    "<META NAME=\"viewport\" CONTENT=\"width=device-width, initial-scale=1\">\n"
    "<LINK REL=STYLESHEET TYPE=\"text/css\" HREF=\"rep_nav/navigator.css\" >\n"
    "<SCRIPT SRC=\"rep_nav/navigator.js\" DEFER></SCRIPT>\n";

class ScriptNavigatorTest : public DocumentTest {
protected:
    ScriptNavigatorTest() {
        files.put("C:\\inst\\navigator\\order.txt", "words.js\nlook.css\nstart.js\nprint.css\n");
        files.put("C:\\inst\\navigator\\words.js", "words();\n");
        files.put("C:\\inst\\navigator\\look.css", "LOOK { }\n");
        files.put("C:\\inst\\navigator\\start.js", "start();\n");
        files.put("C:\\inst\\navigator\\print.css", "PRINT { }\n");
        html("Navig", "1");
        html("ScriptNavigator", "true");
    }

    void heading(std::u16string_view text, std::u16string_view style = u"Heading 1") {
        doc().setStyle(style);
        doc().insertText(text);
        doc().insertEndl();
        doc().setStyle(u"Normal");
    }
    /// The value that a file of the navigator hands over.
    [[nodiscard]] std::string data(const std::string& name) const {
        return between(out("rep_nav\\" + name + ".js"), "repNav(\"" + name + "\",'", "');\n");
    }
    /// The part of a page's head after its style sheet.
    [[nodiscard]] std::string headEnd(const OrxString& name) const {
        return between(out(name), "default.css\" >\n", "</HEAD>");
    }
    [[nodiscard]] std::string startPage() const {
        return between(out("rep.htm"), "</HEAD>\n\n", "\n</HTML>\n");
    }
};

TEST_F(ScriptNavigatorTest, HeadsOfPagesAndStartPageEndWithTheNavigator) {
    open();
    doc().insertText(u"text");
    doc().close();
    EXPECT_EQ(headEnd("rep_dtl.htm"), headLines);
    EXPECT_EQ(headEnd("rep.htm"), headLines);
}

TEST_F(ScriptNavigatorTest, PagesInDirectoriesLinkUpwards) {
    open();
    doc().pushDirectory(u"a\\b");
    doc().insertText(u"text");
    doc().close();
    EXPECT_NE(out("a\\b\\rep_dtl.htm").find("HREF=\"../../rep_nav/navigator.css\" >\n"),
              std::string::npos);
    EXPECT_NE(out("a\\b\\rep_dtl.htm").find("SRC=\"../../rep_nav/navigator.js\" DEFER"),
              std::string::npos);
}

TEST_F(ScriptNavigatorTest, ScriptAndStyleSheetArePutTogetherInOrder) {
    open();
    EXPECT_EQ(out("rep_nav\\navigator.js"), "words();\n\nstart();\n\n");
    EXPECT_EQ(out("rep_nav\\navigator.css"), "LOOK { }\n\nPRINT { }\n\n");
}

TEST_F(ScriptNavigatorTest, DontCopyDoesNotConcernIt) {
    html("DontCopy", ".js.css.gif");
    open();
    EXPECT_TRUE(isWritten("C:\\out\\rep_nav\\navigator.js"));
}

TEST_F(ScriptNavigatorTest, DataFilesDescribeTheDocument) {
    open();
    doc().setOption(u"title", u"A & B");
    heading(u"First OrderLine");
    doc().insertText(u"caf\u00E9 <b>");
    heading(u"Second", u"Heading 2");
    doc().insertPageBreak();
    doc().insertText(u"orders");
    doc().close();
    EXPECT_EQ(data("set"),
              "{\"format\":1,\"title\":\"A & B\",\"start\":\"rep.htm\",\"name\":\"rep_dtl\","
              "\"extension\":\".htm\",\"pages\":2,\"entries\":3,\"roots\":2,\"icons\":[]}");
    EXPECT_EQ(data("tree0"),
              "[[[\"First OrderLine\",\"rep_dtl.htm#toc1\",2,1],[\"Page 2\",\"rep_dtl2.htm#Page "
              "2\"],[\"Second\",\"rep_dtl.htm#toc2\"]],[[0,\"First OrderLine\",\"rep_dtl.htm#"
              "toc1\",2,1]]]");
    EXPECT_EQ(data("page0"), "[0,1]");
    EXPECT_EQ(data("anchor0"), "[0,2]");
    EXPECT_EQ(data("index"), "[\"2\"]");
    EXPECT_EQ(data("word0"),
              "\"A2,B,B;Acafe,,A;Afirst,A,A;Aline,A,A;Aorderline,A,A;Fs,,B;Apage,B,B;"
              "Asecond,C,A;\"");
}

TEST_F(ScriptNavigatorTest, StartPageShowsTitleAndContentsAsText) {
    html("PassThrough", "true");
    open();
    doc().setOption(u"title", u"<IMG> &amp; caf\u00E9");
    heading(u"One <B>x</B>");
    heading(u"Two", u"Heading 2");
    heading(u"Three", u"Heading 3");
    heading(u"Four");
    doc().close();
    EXPECT_EQ(startPage(),
              "<BODY  >\n<H1>&lt;IMG&gt; &amp; caf&#233;</H1>\n<UL CLASS=\"rn-start\">\n"
              "<LI><A HREF=\"rep_dtl.htm#toc1\">One &lt;B&gt;x&lt;/B&gt;</A>\n<UL>\n"
              "<LI><A HREF=\"rep_dtl.htm#toc2\">Two</A>\n<UL>\n"
              "<LI><A HREF=\"rep_dtl.htm#toc3\">Three</A></LI>\n</UL></LI>\n</UL></LI>\n"
              "<LI><A HREF=\"rep_dtl.htm#toc4\">Four</A></LI>\n</UL>\n</BODY>");
}

TEST_F(ScriptNavigatorTest, StartPageOfALongContentsShowsUpperLevelsOnly) {
    open();
    for (int chapter = 0; chapter < 30; ++chapter) {
        heading(u"Chapter");
        for (int section = 0; section < 6; ++section) {
            heading(u"Section", u"Heading 2");
        }
    }
    doc().close();
    EXPECT_NE(startPage().find("Chapter"), std::string::npos);
    EXPECT_EQ(startPage().find("Section"), std::string::npos);
}

TEST_F(ScriptNavigatorTest, OtherContentsFilesAreAsWithoutIt) {
    html("SupportOld", "true");
    const auto write = [&](const char* navigator) {
        html("ScriptNavigator", navigator);
        renew();
        open();
        heading(u"First");
        doc().close();
    };
    write("false");
    std::map<std::string, std::string> before;
    for (const char* name : {"rep_cnt.htm", "rep_toc.dat", "rep_ffrm.htm", "rep_fcnt.htm",
                             "rep_sfrm.htm", "rep_scnt.htm"}) {
        before[name] = out(name);
        EXPECT_NE(before[name], "(none)") << name;
        files.deleteFile("C:\\out\\" + OrxString(name));
    }
    write("true");
    for (const auto& [name, bytesBefore] : before) {
        EXPECT_EQ(out(OrxString(name)), bytesBefore) << name;
    }
}

TEST_F(ScriptNavigatorTest, PagesAreOnlyChangedInTheirHeads) {
    const auto page = [&](const char* navigator) {
        html("ScriptNavigator", navigator);
        renew();
        open();
        heading(u"First");
        doc().insertText(u"text");
        doc().close();
        return out("rep_dtl.htm");
    };
    std::string with = page("true");
    const std::size_t place = with.find(headLines);
    ASSERT_NE(place, std::string::npos);
    with.erase(place, headLines.size());
    EXPECT_EQ(with, page("false"));
}

TEST_F(ScriptNavigatorTest, PagesThatAreHeldBackHaveTheirWordsToo) {
    open();
    doc().insertXref(u"forward", u"target");
    doc().insertPageBreak();
    doc().insertText(u"second");
    doc().insertPageBreak();
    doc().insertTag(u"target");
    doc().insertXref(u"never", u"nowhere");
    doc().close();
    EXPECT_NE(data("word0").find("Aforward,,A;"), std::string::npos);
    EXPECT_NE(data("word0").find("never,,C;"), std::string::npos);
    EXPECT_NE(data("word0").find("second,,B;"), std::string::npos);
}

TEST_F(ScriptNavigatorTest, EveryPageIsWrittenOnce) {
    FailingFileSystem counting(files);
    const InstalledFileSystem countingInForce(counting);
    const auto writes = [&](const char* navigator) {
        html("ScriptNavigator", navigator);
        renew();
        open();
        const std::size_t before = counting.count(FailingFileSystem::Operation::openForWriting);
        for (int page = 0; page < 10; ++page) {
            doc().insertXref(u"forward", u"target");
            doc().insertPageBreak();
        }
        doc().insertTag(u"target");
        return counting.count(FailingFileSystem::Operation::openForWriting) - before;
    };
    EXPECT_EQ(writes("true"), writes("false"));
}

TEST_F(ScriptNavigatorTest, IconsOfEntriesAreCopiedAndNamed) {
    files.put("C:\\mine\\__None.gif", "own");
    files.put("C:\\inst\\navigator\\icons\\__None.gif", "shipped");
    html("IconFile", "C:\\mine\\icons.zip");
    open();
    heading(u"First");
    doc().close();
    EXPECT_EQ(out("rep_nav\\icons\\__None.gif"), "own");
    EXPECT_NE(data("set").find("\"icons\":[\"__None.gif\"]"), std::string::npos);
    EXPECT_EQ(data("tree0"), "[[[\"First\",\"rep_dtl.htm#toc1\",0,0,1]],[]]");
}

TEST_F(ScriptNavigatorTest, WithoutContentsThereIsNone) {
    html("Navig", "2");
    open();
    doc().insertText(u"text");
    doc().close();
    EXPECT_EQ(headEnd("rep.htm"), "");
    EXPECT_FALSE(isWritten("C:\\out\\rep_nav\\navigator.js"));
}

TEST_F(ScriptNavigatorTest, MissingSupportFilesAreTracedAndNothingRefersToThem) {
    files.deleteFile("C:\\inst\\navigator\\look.css");
    open();
    EXPECT_NE(traced().find("ERR Could not read file C:\\inst\\navigator\\look.css\n"),
              std::string::npos);
    doc().insertText(u"text");
    doc().close();
    EXPECT_EQ(headEnd("rep_dtl.htm"), "");
    EXPECT_NE(out("rep.htm").find("FRAMESET"), std::string::npos);
    EXPECT_FALSE(isWritten("C:\\out\\rep_nav\\set.js"));
}

TEST_F(ScriptNavigatorTest, ScriptThatCannotBeWrittenIsLoggedAndNothingRefersToIt) {
    files.makeDirectories("C:\\out\\rep_nav\\navigator.js");
    open();
    doc().insertText(u"text");
    doc().close();
    EXPECT_EQ(headEnd("rep_dtl.htm"), "");
    ASSERT_EQ(exceptions.messages().size(), 1U);
    EXPECT_NE(exceptions.messages()[0].find("Error opening file: C:\\out\\rep_nav\\navigator.js"),
              std::string::npos);
}

TEST_F(ScriptNavigatorTest, DataFileThatCannotBeWrittenIsLoggedAndTheOthersAreWritten) {
    files.makeDirectories("C:\\out\\rep_nav\\tree0.js");
    open();
    heading(u"First");
    doc().close();
    ASSERT_EQ(exceptions.messages().size(), 1U);
    EXPECT_NE(data("set"), "(none)");
    EXPECT_NE(data("word0"), "(none)");
}

TEST_F(ScriptNavigatorTest, DocumentThatIsClosedAgainHasTheNewEntries) {
    open();
    heading(u"Deep", u"Heading 2");
    doc().insertText(u"one");
    doc().close();
    heading(u"Flat");
    doc().close();
    EXPECT_NE(data("set").find("\"entries\":2"), std::string::npos);
    EXPECT_NE(data("word0").find("flat,B,;"), std::string::npos);
    EXPECT_NE(data("word0").find("deep,A,A;"), std::string::npos);
}

TEST_F(ScriptNavigatorTest, TheNextDocumentStartsAnew) {
    open();
    doc().insertText(u"first");
    doc().close();
    doc().create(u"C:\\out\\other.htm");
    doc().insertText(u"second");
    doc().close();
    const std::string words = out("other_nav\\word0.js");
    EXPECT_EQ(words.find("first"), std::string::npos);
    EXPECT_NE(words.find("second"), std::string::npos);
}

}  // namespace

}  // namespace quillmark::testing
