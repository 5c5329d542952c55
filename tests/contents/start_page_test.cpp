#include "contents/start_page.h"

#include <gtest/gtest.h>

#include "contents/contents_fixture.h"

namespace quillmark {
namespace {

class StartPage : public testing::ContentsTest {};

constexpr const char* browserScript =
    R"script(<SCRIPT LANGUAGE="JavaScript1.2" TYPE="text/javascript">
<!--Begin JavaScript
var name = navigator.appName
var version = navigator.appVersion
var isSupportedBrowser = false
if (name.indexOf("Netscape") != -1)
{
// In the case of Netscape Navigator, we must have v4.06 or later.
   if (version.indexOf("4.0") == 0)
   {
      version.match(/^\d+\.(\d+)/)
      var minor = RegExp.$1
      if (minor.search(/^0[0-5]$/) == -1)
      {
         // Browser is 4.06 or later.
         isSupportedBrowser = true;
      }
      // else browser is 4.0[0-5] or simply 4.0.
   }
   else // Browser is 4.1 or later.
   {
      isSupportedBrowser = true;
   }
}
else if  (name.indexOf("Microsoft") != -1)
{
   // In the case of Internet Explorer, we must have v4.0 or later.
   // This is happily already assured by our requiring JavaScript v1.2.
   isSupportedBrowser = true;
}
if (isSupportedBrowser)
{
   if (navigator.javaEnabled())
   {
      document.writeln("<FRAMESET COLS='30%,*' ROWS=*>")
      document.writeln("<FRAME SRC='rep_cnt.htm' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1 SCROLLING=NO>")
      document.writeln("<FRAME SRC='rep_dtl.htm' NAME='main' MARGINWIDTH=1 MARGINHEIGHT=1>")
      document.writeln("<\/FRAMESET>")
  }
}
//-->
</SCRIPT>
)script";

TEST_F(StartPage, ChecksTheBrowserInFrontOfTheBody) {
    writeStartPage(context);
    EXPECT_EQ(headBehindTitle("rep.htm"), "");
    EXPECT_EQ(body("rep.htm"),
              browserScript +
                  std::string(
                      "<BODY BGCOLOR=white >\n"
                      "This page requires Netscape Navigator 4.06+ or Internet Explorer 4.0+ with "
                      "JavaScript and Java enabled.<BR>\n"
                      "If you <EM>do</EM> have a supported browser please ensure that Javascript "
                      "and Java are both enabled and reload.\n"));
    EXPECT_EQ(title("rep.htm"), "My <Report>");
}

TEST_F(StartPage, OffersOldBrowsersTheFrameSetsMadeForThem) {
    context.supportOld = true;
    writeStartPage(context);
    EXPECT_EQ(
        body("rep.htm"),
        browserScript +
            std::string("<BODY BGCOLOR=white >\n"
                        "For the best appearance, this page requires Netscape Navigator 4.06+\n"
                        " or Internet Explorer 4.0+ with JavaScript and Java enabled.\n"
                        "<BR>Other options are available.<OL>\n"
                        "<LI>If you <EM>do</EM> have a supported browser please ensure that "
                        "Javascript and Java are both enabled and reload.<BR>\n"
                        "<LI>If your browser supports JDK 1.1.5 or later, you might try the "
                        "nonresizable version of the "
                        "  <A HREF=\"rep_ffrm.htm\" >table of contents applet</A>.\n"
                        "<BR>\n"
                        "<LI>You may also try the "
                        "  <A HREF=\"rep_sfrm.htm\" >static table of contents</A>.\n"
                        "</OL><BR>\n"));
}

TEST_F(StartPage, WritesTheFrameSetsOnlyForOldBrowsers) {
    using Names = std::vector<std::string>;
    writeStartPage(context);
    EXPECT_EQ(files.fileNames(), (Names{"C:\\out\\rep.htm"}));
    context.supportOld = true;
    writeStartPage(context);
    EXPECT_EQ(files.fileNames(),
              (Names{"C:\\out\\rep.htm", "C:\\out\\rep_fcnt.htm", "C:\\out\\rep_ffrm.htm",
                     "C:\\out\\rep_scnt.htm", "C:\\out\\rep_sfrm.htm"}));
}

TEST_F(StartPage, CarriesNoStyleSheet) {
    writeStartPage(context);
    EXPECT_EQ(written("rep.htm").find("STYLESHEET"), std::string::npos);
}

TEST_F(StartPage, NamesTheContentsAndTheFirstDetailPageWithTheDocumentsExtension) {
    context.extension = ".html";
    context.firstDetailPage = "C:\\out\\rep_dtl.html";
    writeStartPage(context);
    const std::string page = body("rep.html");
    EXPECT_NE(page.find("<FRAME SRC='rep_cnt.html' NAME='contents'"), std::string::npos);
    EXPECT_NE(page.find("<FRAME SRC='rep_dtl.html' NAME='main'"), std::string::npos);
}

TEST_F(StartPage, WithoutBodyTagsKeepsBothBlanks) {
    context.bodyTags = "";
    writeStartPage(context);
    EXPECT_NE(body("rep.htm").find("</SCRIPT>\n<BODY  >\nThis page"), std::string::npos);
}

}  // namespace
}  // namespace quillmark
