#include "driver/document_fixture.h"

namespace quillmark {
namespace {

std::string deadBack(const std::string& pictures) {
    return "<IMG SRC=\"" + pictures + "/backOFF.gif\" BORDER=\"0\" NOSAVE HEIGHT=20 WIDTH=22>\n";
}
std::string deadNext(const std::string& pictures) {
    return "<IMG SRC=\"" + pictures + "/forwardOFF.gif\" NOSAVE BORDER=\"0\" HEIGHT=20 WIDTH=22>\n";
}
std::string arrow(const std::string& page, const std::string& picture) {
    return "<A HREF=\"./" + page + "\"><IMG SRC=\"" + picture +
           "\" BORDER=\"0\" HSPACE=5 NOSAVE HEIGHT=20 WIDTH=19></A>\n";
}
std::string back(const std::string& page) {
    return arrow(page, "pix/backON.gif");
}
std::string next(const std::string& page) {
    return arrow(page, "pix/forwardON.gif");
}

class Arrows : public testing::DocumentTest {
protected:
    Arrows() {
        html("Navig", "2");
        for (const char* const name : {"forwardON", "forwardOFF", "backON", "backOFF"}) {
            files.put("C:\\inst\\pix\\" + OrxString(name) + ".gif", name);
        }
    }
    [[nodiscard]] std::string top(const OrxString& page) const {
        return testing::between(out(page), "<BODY  >\n", "<a name=");
    }
};

TEST_F(Arrows, AreDeadOnTheOnlyPage) {
    open();
    doc().close();
    EXPECT_EQ(top("rep.htm"), deadBack("pix") + deadNext("pix") + "<BR>\n");
}

TEST_F(Arrows, LeadFromPageToPage) {
    open();
    doc().insertPageBreak();
    doc().insertPageBreak();
    doc().close();
    EXPECT_EQ(top("rep.htm"), deadBack("pix") + next("rep2.htm") + "<BR>\n");
    EXPECT_EQ(top("rep2.htm"), back("rep.htm") + next("rep3.htm") + "<BR>\n");
    EXPECT_EQ(top("rep3.htm"), back("rep2.htm") + deadNext("pix") + "<BR>\n");
}

TEST_F(Arrows, StayInThePagesOwnDirectory) {
    open();
    doc().pushDirectory(u"a\\b");
    doc().insertPageBreak();
    doc().popDirectory();
    doc().insertPageBreak();
    doc().close();
    EXPECT_EQ(top("a\\b\\rep.htm"),
              deadBack("../../pix") + arrow("rep2.htm", "../../pix/forwardON.gif") + "<BR>\n");
    EXPECT_EQ(top("a\\b\\rep2.htm"), arrow("rep.htm", "../../pix/backON.gif") +
                                         arrow("rep3.htm", "../../pix/forwardON.gif") + "<BR>\n");
    EXPECT_EQ(top("rep3.htm"), back("rep2.htm") + deadNext("pix") + "<BR>\n");
}

TEST_F(Arrows, ShowTheirPicturesByUrlWhenLinksAreAbsolute) {
    html("UseRelative", "false");
    open();
    doc().close();
    EXPECT_EQ(top("rep.htm"),
              deadBack("file:///C|/out/pix") + deadNext("file:///C|/out/pix") + "<BR>\n");
}

TEST_F(Arrows, AreBeforeTheHeader) {
    open();
    doc().startHeader();
    doc().insertText(u"h");
    doc().endHeader();
    doc().close();
    EXPECT_EQ(top("rep.htm"), deadBack("pix") + deadNext("pix") + "<BR>\nh<HR>\n");
}

TEST_F(Arrows, LeadToDetailPagesBesideContentsPages) {
    html("Navig", "3");
    open(u"C:\\out\\rep.html");
    doc().insertPageBreak();
    doc().close();
    EXPECT_EQ(top("rep_dtl.html"), deadBack("pix") + next("rep_dtl2.html") + "<BR>\n");
    EXPECT_EQ(top("rep_dtl2.html"), back("rep_dtl.html") + deadNext("pix") + "<BR>\n");
}

TEST_F(Arrows, FollowTheNextDocumentsPlacesAndSettings) {
    open();
    doc().insertPageBreak();
    doc().close();
    html("HtmlPixDir", "img");
    open(u"C:\\out\\deep\\other.htm");
    doc().close();
    EXPECT_EQ(top("deep\\other2.htm"),
              arrow("other.htm", "img/backON.gif") + deadNext("img") + "<BR>\n");
    html("UseRelative", "false");
    open(u"C:\\out\\deep\\last.htm");
    doc().close();
    EXPECT_EQ(top("deep\\last2.htm"), arrow("last.htm", "file:///C|/out/deep/img/backON.gif") +
                                          deadNext("file:///C|/out/deep/img") + "<BR>\n");
}

TEST_F(Arrows, FollowThePagesDirectoryAndTheWayBack) {
    open();
    doc().pushDirectory(u"a");
    doc().insertPageBreak();
    doc().insertEndl();
    doc().pushDirectory(u"b\\c");
    doc().insertEndl();
    doc().pushDirectory(u"");
    doc().close();
    EXPECT_NE(out("a\\rep.htm").find("SRC=\"../pix/backOFF.gif\""), std::string::npos);
    EXPECT_NE(out("a\\rep2.htm").find("SRC=\"../pix/backON.gif\""), std::string::npos);
    EXPECT_NE(out("b\\c\\rep3.htm").find("SRC=\"../../pix/backON.gif\""), std::string::npos);
    EXPECT_NE(out("rep4.htm").find("SRC=\"pix/backON.gif\""), std::string::npos);
}

TEST_F(Arrows, BringTheirPicturesAlong) {
    open();
    for (const char* const name : {"forwardON", "forwardOFF", "backON", "backOFF"}) {
        EXPECT_EQ(out("pix\\" + OrxString(name) + ".gif"), name);
    }
}

TEST_F(Arrows, TraceEveryPictureThatCouldNotBeCopied) {
    files.makeDirectories("C:\\out\\pix\\forwardON.gif");
    files.makeDirectories("C:\\out\\pix\\forwardOFF.gif");
    files.makeDirectories("C:\\out\\pix\\backON.gif");
    files.makeDirectories("C:\\out\\pix\\backOFF.gif");
    open();
    const std::string copy = "ERR Could not copy file C:\\inst\\pix\\";
    const std::string there = ".gif to directory C:\\out\\pix\n";
    EXPECT_EQ(traced(), "dochtml->create(\"C:\\out\\rep.htm\");\n" + copy + "forwardON" + there +
                            copy + "forwardOFF" + there + copy + "backON" + there + copy +
                            "backOFF" + there + "created bookmark:Page 1 as rep.htm#Page 1\n");
}

TEST_F(Arrows, LeavePicturesThatMustNotBeCopied) {
    html("DontCopy", ".gif");
    open();
    EXPECT_EQ(out("pix\\backON.gif"), "(none)");
}

TEST_F(Arrows, OfAPageWithoutANameStartFromTheOutputDirectory) {
    open();
    doc().close();
    doc().close();  // this page has no name yet, but its arrows are written already
    doc().pushDirectory(u"x");
    doc().insertText(u"a");
    doc().close();
    EXPECT_EQ(testing::between(out("x\\rep.htm"), "</HEAD>\n\n", "a\n\n</BODY>"),
              "<BODY  >\n" + deadBack("pix") + deadNext("pix") + "<BR>\n" + "<BODY  >\n" +
                  deadBack("../pix") + deadNext("../pix") + "<BR>\n");
}

TEST_F(Arrows, AreNotTakenFromTheCurrentDirectoryWithoutAnInstallation) {
    setting("Settings", "InstallDir", "");
    html("StyleSheet", "");
    ASSERT_TRUE(files.setCurrentDirectory("C:\\inst"));
    open();
    EXPECT_EQ(out("pix\\backON.gif"), "(none)");
    files.put("\\pix\\backON.gif", "of the root");
    open();
    EXPECT_EQ(out("pix\\backON.gif"), "of the root");
}

TEST_F(Arrows, AreNotThereWithoutTheirBit) {
    html("Navig", "4");
    open();
    doc().close();
    EXPECT_EQ(top("rep.htm"), "");
    EXPECT_EQ(out("pix\\backON.gif"), "(none)");
}

}  // namespace
}  // namespace quillmark
