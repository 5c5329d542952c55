#include "contents/applet_contents.h"

#include <string_view>

#include "contents/contents_names.h"
#include "contents/locate_script.h"
#include "page/doc_html_page.h"
#include "page/links/links.h"

namespace quillmark {

namespace {

constexpr std::string_view resizeScript =
    R"js(<SCRIPT LANGUAGE="JavaScript1.2" TYPE="text/javascript">
function handleResize(e)
{
   document.applets[0].viewResized(window.innerWidth, window.innerHeight)
}
if (navigator.appName.indexOf("Netscape") != -1)
{
   window.onload = handleResize
   window.onresize = handleResize
}
)js";

constexpr std::string_view appletScriptOpening =
    "<BASE TARGET=\"main\">\n"
    "<SCRIPT\tLANGUAGE=\"JavaScript1.2\" TYPE=\"text/javascript\">\n"
    R"js(var name = navigator.appName;
var isNavigator = (name.indexOf("Netscape") != -1)
var isExplorer = (name.indexOf("Microsoft") != -1)
if (isNavigator || isExplorer)
{
)js";

void appendHeadScript(const ContentsContext& context, DocHtmlPage& page) {
    page.appendHead(resizeScript);
    if (context.locateInBrowser) {
        page.appendHead(locateScript());
    }
    page.appendHead("</SCRIPT>");
}

void appendVirtualNavigator(const ContentsContext& context, DocHtmlPage& page) {
    page.append("   if (isNavigator)\n   {\n");
    if (context.useJnlp) {
        page.append(R"js(      document.write("<APPLET CODE='com.brevanta.lumivast.TOC.)js"
                    "VirtualNavigator.class' JNLP_HREF='");
        page.append(context.appletJnlp);
    } else {
        page.append(R"js(      document.write("<APPLET CODE='com/brevanta/lumivast/TOC/)js"
                    "VirtualNavigator.class' ARCHIVE='");
        page.append(context.appletArchive);
    }
    page.append(R"js(' ");
      document.writeln("WIDTH=" + screen.width + " HEIGHT=" + screen.height + " MAYSCRIPT>");
      document.writeln("<PARAM NAME=BROWSERNAME VALUE='netscape'>");
      document.writeln("<PARAM NAME=FRAMEINDEX VALUE=1>");
   }
)js");
}

void appendDirectNavigator(const ContentsContext& context, DocHtmlPage& page) {
    page.append("   else if (isExplorer)\n   {\n");
    if (context.useJnlp) {
        page.append(R"js(      document.writeln("<APPLET CODE='com.brevanta.lumivast.TOC.)js"
                    "DirectNavigator.class' JNLP_HREF='");
        page.append(context.appletJnlp);
    } else {
        page.append(R"js(      document.writeln("<APPLET CODE='com/brevanta/lumivast/TOC/)js"
                    "DirectNavigator.class' ARCHIVE='");
        page.append(context.appletArchive);
    }
    page.append(R"js(' WIDTH=100% HEIGHT=100% BORDER=1>");
      document.writeln("<PARAM NAME=BROWSERNAME VALUE='microsoft'>");
      document.writeln("<PARAM NAME=FRAMENAME VALUE='main'>");
   }
)js");
}

void appendScriptedParameter(std::string_view name, const OrxString& value, DocHtmlPage& page) {
    page.append(OrxString("   document.writeln(\"<PARAM NAME=")
                    .append(name)
                    .append(" VALUE='")
                    .append(value)
                    .append("'>\");\n"));
}

void appendIconParameters(const ContentsContext& context, const IconArchives& archives,
                          DocHtmlPage& page) {
    if (!context.showIcons) {
        return;
    }
    appendScriptedParameter("ICONZIPFILE", links::relativeFile(archives.icons, context.outputDir),
                            page);
    if (!archives.userIcons.isEmpty()) {
        appendScriptedParameter("USERZIPFILE",
                                links::relativeFile(archives.userIcons, context.outputDir), page);
    }
}

void appendAppletScript(const ContentsContext& context, const IconArchives& archives,
                        const OrxString& treeFile, DocHtmlPage& page) {
    page.append(appletScriptOpening);
    appendVirtualNavigator(context, page);
    appendDirectNavigator(context, page);
    if (!context.useJnlp) {
        page.append(
            "   document.writeln(\"<PARAM NAME=BACKGROUND VALUE='\"+ document.bgColor + "
            "\"'>\");\n");
    }
    appendIconParameters(context, archives, page);
    appendScriptedParameter("TOCFILE", links::fromFilePart(treeFile), page);
    // The two variants spell the end tag of the applet differently.
    page.append(context.locateInBrowser ? "\t\tdocument.writeln(\"</APPLET>\");\n"
                                        : "   document.writeln(\"<\\/APPLET>\");\n");
    page.append("}\n</SCRIPT>\n");
}

}  // namespace

void writeAppletContents(const ContentsContext& context, const IconArchives& archives,
                         const OrxString& treeFile) {
    DocHtmlPage page;
    page.setFileName(contents_names::appletContents(context));
    page.setTitle(context.title);
    appendHeadScript(context, page);
    page.append("<BODY " + context.bodyTags + " >\n");
    appendAppletScript(context, archives, treeFile, page);
    page.close();
}

}  // namespace quillmark
