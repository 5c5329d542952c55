#include "contents/frame_sets.h"

#include "contents/contents_names.h"
#include "contents/fixed_contents.h"
#include "contents/static_listing.h"
#include "page/doc_html_page.h"
#include "page/links/links.h"

namespace quillmark {

namespace {

void appendMainFrame(const ContentsContext& context, DocHtmlPage& page) {
    page.append("<FRAME SRC='" + contents_names::fixedDetailLink(context) +
                "' NAME='main' MARGINWIDTH=1 MARGINHEIGHT=1>\n");
    page.append("</FRAMESET>\n");
}

void writeStaticContents(const ContentsContext& context) {
    DocHtmlPage page;
    page.setFileName(contents_names::staticContents(context));
    page.setTitle(context.title);
    page.append("<BODY>\n");
    page.reserve(staticListingSize(context.entries));
    writeStaticListing(context.entries, page);
    page.append("\n</BODY>");
    page.close();
}

}  // namespace

OrxString writeFixedFrameSet(const ContentsContext& context) {
    writeFixedContents(context);
    OrxString fileName = contents_names::fixedFrameSet(context);
    DocHtmlPage page;
    page.setFileName(fileName);
    page.setTitle(context.title);
    page.setStyleSheet(context.styleSheetLink);
    page.append("<FRAMESET COLS='200,*'>\n");
    page.append("<FRAME SRC='" + links::fromFilePart(contents_names::fixedContents(context)) +
                "' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1 SCROLLING=NO>\n");
    appendMainFrame(context, page);
    page.close();
    return fileName;
}

OrxString writeStaticFrameSet(const ContentsContext& context) {
    writeStaticContents(context);
    OrxString fileName = contents_names::staticFrameSet(context);
    DocHtmlPage page;
    page.setFileName(fileName);
    page.setTitle(context.title);
    page.append("<FRAMESET COLS='30%,*' ROWS=*>\n");
    page.append("<FRAME SRC='" + links::fromFilePart(contents_names::staticContents(context)) +
                "' NAME='contents' MARGINWIDTH=1 MARGINHEIGHT=1>\n");
    appendMainFrame(context, page);
    page.close();
    return fileName;
}

}  // namespace quillmark
