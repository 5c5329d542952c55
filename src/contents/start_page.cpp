#include "contents/start_page.h"

#include <string_view>

#include "contents/contents_names.h"
#include "contents/frame_sets.h"
#include "page/doc_html_page.h"
#include "page/links/links.h"

namespace quillmark {

namespace {

constexpr std::string_view browserCheck =
    R"js(<SCRIPT LANGUAGE="JavaScript1.2" TYPE="text/javascript">
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
)js";

constexpr std::string_view frameSetEnd = R"js(      document.writeln("<\/FRAMESET>")
  }
}
//-->
</SCRIPT>
)js";

constexpr std::string_view supportedBrowsersOnly =
    R"html(This page requires Netscape Navigator 4.06+ or Internet Explorer 4.0+ with JavaScript and Java enabled.<BR>
If you <EM>do</EM> have a supported browser please ensure that Javascript and Java are both enabled and reload.
)html";

constexpr std::string_view otherOptions =
    R"html(For the best appearance, this page requires Netscape Navigator 4.06+
 or Internet Explorer 4.0+ with JavaScript and Java enabled.
<BR>Other options are available.<OL>
<LI>If you <EM>do</EM> have a supported browser please ensure that Javascript and Java are both enabled and reload.<BR>
<LI>If your browser supports JDK 1.1.5 or later, you might try the nonresizable version of the )html";

/// Appends the script that writes the frame set. It comes between the head and the BODY tag,
/// because a frame set must not follow a body.
void appendFrameSetScript(const ContentsContext& context, DocHtmlPage& page) {
    const OrxString contents = links::fromFilePart(contents_names::appletContents(context));
    const OrxString main = links::fromFilePart(context.firstDetailPage);
    page.append(browserCheck);
    page.append("      document.writeln(\"<FRAME SRC='" + contents +
                "' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1 SCROLLING=NO>\")\n");
    page.append("      document.writeln(\"<FRAME SRC='" + main +
                "' NAME='main' MARGINWIDTH=1 MARGINHEIGHT=1>\")\n");
    page.append(frameSetEnd);
}

void appendOtherOptions(const ContentsContext& context, DocHtmlPage& page) {
    page.append(otherOptions);
    const OrxString fixed = links::fromFilePart(writeFixedFrameSet(context));
    page.append("  <A HREF=\"" + fixed + "\" >table of contents applet</A>.\n");
    page.append("<BR>\n<LI>You may also try the ");
    const OrxString listing = links::fromFilePart(writeStaticFrameSet(context));
    page.append("  <A HREF=\"" + listing + "\" >static table of contents</A>.\n");
    page.append("</OL><BR>\n");
}

}  // namespace

void writeStartPage(const ContentsContext& context) {
    DocHtmlPage page;
    page.setFileName(contents_names::startPage(context));
    page.setTitle(context.title);
    appendFrameSetScript(context, page);
    page.append("<BODY " + context.bodyTags + " >\n");
    if (context.supportOld) {
        appendOtherOptions(context, page);
    } else {
        page.append(supportedBrowsersOnly);
    }
    page.close();
}

}  // namespace quillmark
