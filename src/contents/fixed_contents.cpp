#include "contents/fixed_contents.h"

#include <string_view>

#include "contents/contents_names.h"
#include "contents/support_files.h"
#include "page/doc_html_page.h"
#include "page/links/links.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

// "toc.jar" is not copied. Whoever still supports such browsers must add it to the document set.
constexpr std::string_view appletOpening =
    R"html(<BODY>
<APPLET CODE='com/brevanta/lumivast/TOC/DirectNavigator.class' ARCHIVE='toc.jar' WIDTH=192 HEIGHT=300>
<PARAM NAME=BROWSERNAME VALUE='microsoft'>
<PARAM NAME=FRAMENAME VALUE='main'>
<PARAM NAME=BACKGROUND VALUE='#ffffff'>
)html";

void appendParameter(std::string_view name, const OrxString& value, DocHtmlPage& page) {
    page.append(
        OrxString("<PARAM NAME=").append(name).append(" VALUE='").append(value).append("'>\n"));
}

/// The link to a file in the image directory, which need not exist.
OrxString pictureLink(const ContentsContext& context, const OrxString& name) {
    return links::relativeFile(SysFile::appendToDir(context.pixDir, name), context.outputDir);
}

void appendIconParameters(const ContentsContext& context, DocHtmlPage& page) {
    if (!context.showIcons) {
        return;
    }
    appendParameter("ICONZIPFILE", pictureLink(context, iconArchiveName), page);
    if (!context.iconFile.isEmpty()) {
        appendParameter("USERZIPFILE", pictureLink(context, SysFile::stripDir(context.iconFile)),
                        page);
    }
}

}  // namespace

void writeFixedContents(const ContentsContext& context) {
    DocHtmlPage page;
    page.setFileName(contents_names::fixedContents(context));
    page.setTitle(context.title);
    page.setStyleSheet(context.styleSheetLink);
    page.append(appletOpening);
    appendParameter("TOCFILE", links::fromFilePart(contents_names::treeData(context) + ".zip"),
                    page);
    appendIconParameters(context, page);
    page.append("You must enable Java to use this table of contents feature.\n");
    page.append("If you would rather not, you might try the <A HREF='" +
                contents_names::fixedStaticContentsLink(context) +
                "'>static table of contents</A>.\n");
    page.append("</APPLET>\n");
    page.append("\n</BODY>");
    page.close();
}

}  // namespace quillmark
