#include "driver/page_turner.h"

#include <algorithm>
#include <string>

#include "page/page_marks.h"
#include "platform/sys_file.h"

namespace quillmark {

OrxString PageTurner::pageFileName() const {
    return context_.names.pageFileName(context_.out.pageNumber(), subDirectory_);
}

void PageTurner::newPage() {
    auto page = OrxCountedPtr<DocHtmlPage>::make();
    page->setTrace(context_.trace);
    // Pages of a report are similar in size, but one very large page does not predict the next.
    constexpr std::size_t commonPage = 65536;
    page->reserve(std::min(expectedSize_, commonPage));
    context_.out.setPage(std::move(page));
}

void PageTurner::startPage() {
    const OutputRouter::BodyScope body(context_.out);
    newPage();
    DocHtmlPage& page = context_.out.page();
    page.setFileName(pageFileName());
    page.addMark(page_marks::topOfPage, "");
    bookmarks_.define("Page " + std::to_string(context_.out.pageNumber()),
                      BookmarkWriter::Origin::driver);
    reopenTextState();
    contents_.startPage();
}

void PageTurner::reopenTextState() {
    if (!savedState_.styleName.isEmpty()) {
        const OrxString& inForce = context_.out.state().styleName;
        if (savedState_.styleName != inForce) {
            style_.setStyle(savedState_.styleName);
        }
    }
    if (savedState_.font.size != 0 || savedState_.fontOpen) {
        font_.reopen(savedState_.font);
    }
    // The alignment is not reopened.
}

void PageTurner::endPage(bool last, const std::function<void()>& closeTables) {
    const OutputRouter::BodyScope body(context_.out);
    writeTop(last);
    if (context_.out.page().isEmpty()) {
        return;
    }
    finishBody(closeTables);
    writeTail();
    DocHtmlPage& page = context_.out.page();
    const OrxString& styleSheet = context_.settings.styleSheet;
    page.setStyleSheet(styleSheet.isEmpty()
                           ? OrxString()
                           : styleSheetLink_.relativeFile(styleSheet, context_.linkBase()));
    page.setTitle(title_);
    if (navigator_ != nullptr) {
        addNavigator(page);
    }
    contents_.finishPage();
    dispatchPage(last);
}

void PageTurner::addNavigator(DocHtmlPage& page) {
    page.appendHead(navigator_->headLines(context_.linkBase()));
    page.setReader(navigator_, context_.out.pageNumber());
}

void PageTurner::writeTop(bool last) {
    DocHtmlPage& page = context_.out.page();
    page.appendTop("<BODY ");
    page.appendTop(context_.settings.bodyTags);
    page.appendTop(" >\n");
    if (context_.settings.hasArrows()) {
        page.appendTop(arrows_.bar(context_.out.pageNumber(), last));
    }
    if (const DocHtmlSection* const header = context_.out.section(SectionMode::header);
        header != nullptr) {
        page.appendTop(stamp(*header));
        page.appendTop("<HR>\n");
    }
}

void PageTurner::writeTail() {
    DocHtmlPage& page = context_.out.page();
    page.appendTail("\n");
    if (const DocHtmlSection* const footer = context_.out.section(SectionMode::footer);
        footer != nullptr) {
        page.appendTail("<HR>");
        page.appendTail(stamp(*footer));
    }
    page.appendTail("\n</BODY>");
}

OrxString PageTurner::stamp(const DocHtmlSection& section) {
    const DocHtmlTextState& sectionState = *section.getState();
    if (sectionState.fontOpen) {
        font_.switchTo(sectionState.font);
        // The body's font is now the section's font, so this closes and reopens it. It stays the
        // body's font on the following pages.
        if (context_.out.bodyState().fontOpen) {
            font_.switchTo(FontData(context_.out.bodyState().font));
        }
    }
    return section.getDisplayString(static_cast<long>(context_.out.pageNumber()),
                                    SysFile::stripDir(context_.out.page().getFileName()));
}

void PageTurner::finishBody(const std::function<void()>& closeTables) {
    closeTables();
    savedState_ = context_.out.state();
    style_.closeAll();
}

void PageTurner::dispatchPage(bool last) {
    const auto finish = [this](DocHtmlPage& page) {
        if (!page.isEmpty()) {
            contents_.fillListing(page);
            page.close();
        }
    };
    DocHtmlPage& page = context_.out.page();
    expectedSize_ = page.bodySize();
    if (last) {
        held_.finishAll(finish);
        bookmarks_.clear();
    }
    if (!page.hasMarks()) {
        page.close();
        return;
    }
    if (last) {
        finish(page);
    } else {
        held_.hold(context_.out.pageNumber(), context_.out.sharedPage());
    }
    newPage();
}

void PageTurner::releaseHeldPages() {
    held_.finishAll([](DocHtmlPage& page) { page.close(); });
}

}  // namespace quillmark
