#include "contents/frame_sets.h"

#include <gtest/gtest.h>

#include "contents/contents_fixture.h"

namespace quillmark {
namespace {

class FrameSets : public testing::ContentsTest {
protected:
    FrameSets() { entries.add({.href = "rep_dtl.htm#toc1", .text = "Intro", .level = 1}); }

    static constexpr const char* styleSheetLink =
        "  <LINK REL=STYLESHEET TYPE=\"text/css\" HREF=\"default.css\" >\n";
};

TEST_F(FrameSets, ShowTheFixedAppletAndTheFirstDetailPage) {
    EXPECT_EQ(writeFixedFrameSet(context), "C:\\out\\rep_ffrm.htm");
    EXPECT_EQ(headBehindTitle("rep_ffrm.htm"), styleSheetLink);
    EXPECT_EQ(body("rep_ffrm.htm"),
              "<FRAMESET COLS='200,*'>\n"
              "<FRAME SRC='rep_fcnt.htm' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1 "
              "SCROLLING=NO>\n"
              "<FRAME SRC='rep_dtl.htm' NAME='main' MARGINWIDTH=1 MARGINHEIGHT=1>\n"
              "</FRAMESET>\n");
}

TEST_F(FrameSets, NameThePackedTreeAndTheIconsInTheFixedApplet) {
    context.iconFile = "D:\\icons\\mine.zip";
    writeFixedFrameSet(context);
    EXPECT_EQ(headBehindTitle("rep_fcnt.htm"), styleSheetLink);
    EXPECT_EQ(body("rep_fcnt.htm"),
              R"(<BODY>
<APPLET CODE='com/brevanta/lumivast/TOC/DirectNavigator.class' ARCHIVE='toc.jar' WIDTH=192 HEIGHT=300>
<PARAM NAME=BROWSERNAME VALUE='microsoft'>
<PARAM NAME=FRAMENAME VALUE='main'>
<PARAM NAME=BACKGROUND VALUE='#ffffff'>
<PARAM NAME=TOCFILE VALUE='rep_toc.dat.zip'>
<PARAM NAME=ICONZIPFILE VALUE='pix/icons.zip'>
<PARAM NAME=USERZIPFILE VALUE='pix/mine.zip'>
You must enable Java to use this table of contents feature.
If you would rather not, you might try the <A HREF='rep_scnt.htm'>static table of contents</A>.
</APPLET>

</BODY>)");
}

TEST_F(FrameSets, NameNoIconsOfTheUserWithoutAFile) {
    writeFixedFrameSet(context);
    const std::string page = body("rep_fcnt.htm");
    EXPECT_NE(page.find("ICONZIPFILE VALUE='pix/icons.zip'"), std::string::npos);
    EXPECT_EQ(page.find("USERZIPFILE"), std::string::npos);
}

TEST_F(FrameSets, NameNoIconsWhenTheyAreNotShown) {
    context.iconFile = "D:\\icons\\mine.zip";
    context.showIcons = false;
    writeFixedFrameSet(context);
    const std::string page = body("rep_fcnt.htm");
    EXPECT_EQ(page.find("ICONZIPFILE"), std::string::npos);
    EXPECT_EQ(page.find("USERZIPFILE"), std::string::npos);
}

TEST_F(FrameSets, ShowTheListingAndTheFirstDetailPage) {
    EXPECT_EQ(writeStaticFrameSet(context), "C:\\out\\rep_sfrm.htm");
    EXPECT_EQ(headBehindTitle("rep_sfrm.htm"), "");
    EXPECT_EQ(body("rep_sfrm.htm"),
              "<FRAMESET COLS='30%,*' ROWS=*>\n"
              "<FRAME SRC='rep_scnt.htm' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1>\n"
              "<FRAME SRC='rep_dtl.htm' NAME='main' MARGINWIDTH=1 MARGINHEIGHT=1>\n"
              "</FRAMESET>\n");
    EXPECT_EQ(headBehindTitle("rep_scnt.htm"), "");
    EXPECT_EQ(body("rep_scnt.htm"),
              "<BODY>\n<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n"
              "<A HREF=\"rep_dtl.htm#toc1\">Intro</a><BR>\n\n</BODY>");
}

TEST_F(FrameSets, HaveTheTitleOnAllFourPages) {
    writeFixedFrameSet(context);
    writeStaticFrameSet(context);
    for (const char* const name :
         {"rep_ffrm.htm", "rep_fcnt.htm", "rep_sfrm.htm", "rep_scnt.htm"}) {
        EXPECT_EQ(title(name), "My <Report>") << name;
    }
}

TEST_F(FrameSets, HaveNoLinkWithoutAStyleSheet) {
    context.styleSheetLink = "";
    writeFixedFrameSet(context);
    EXPECT_EQ(headBehindTitle("rep_ffrm.htm"), "");
    EXPECT_EQ(headBehindTitle("rep_fcnt.htm"), "");
}

TEST_F(FrameSets, LinkToDetailPagesAndStaticContentsUnderTheUsualExtensionAlone) {
    context.extension = ".html";
    EXPECT_EQ(writeFixedFrameSet(context), "C:\\out\\rep_ffrm.html");
    EXPECT_EQ(writeStaticFrameSet(context), "C:\\out\\rep_sfrm.html");
    EXPECT_NE(body("rep_ffrm.html").find("SRC='rep_fcnt.html'"), std::string::npos);
    EXPECT_NE(body("rep_ffrm.html").find("SRC='rep_dtl.htm'"), std::string::npos);
    EXPECT_NE(body("rep_fcnt.html").find("HREF='rep_scnt.htm'"), std::string::npos);
    EXPECT_NE(body("rep_sfrm.html").find("SRC='rep_scnt.html'"), std::string::npos);
    EXPECT_NE(body("rep_sfrm.html").find("SRC='rep_dtl.htm'"), std::string::npos);
}

}  // namespace
}  // namespace quillmark
