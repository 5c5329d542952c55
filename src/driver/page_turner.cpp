#include "driver/page_turner.h"

#include <algorithm>
#include <string>
#include <utility>

#include "page/marks/page_marks.h"
#include "platform/files/sys_file.h"

namespace quillmark {

OrxString PageTurner::pageFileName() const {
    return context_.names.pageFileName(context_.out.pageNumber(), subDirectory_);
}

OrxCountedPtr<DocHtmlPage> PageTurner::emptyPage() const {
    auto page = OrxCountedPtr<DocHtmlPage>::make();
    page->setTrace(context_.trace);
    // Pages of a report are similar in size, but one very large page does not predict the next.
    constexpr std::size_t commonPage = 65536;
    page->reserve(std::min(std::max(expectedSize_, context_.out.page().bodySize()), commonPage));
    return page;
}

void PageTurner::preparePage(std::uint32_t number) {
    OrxCountedPtr<DocHtmlPage> page = emptyPage();
    page->setFileName(context_.names.pageFileName(number, subDirectory_));
    page->addMark(page_marks::topOfPage, "");
    next_ = std::move(page);
}

void PageTurner::startPage() {
    const OutputRouter::BodyScope body(context_.out);
    context_.out.setPage(std::exchange(next_, {}));
    step("the anchor of a page", [this] {
        bookmarks_.define("Page " + std::to_string(context_.out.pageNumber()),
                          BookmarkWriter::Origin::driver);
    });
    step("the style of a page", [this] { reopenTextState(); });
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
    DocHtmlPage& page = context_.out.page();
    if (page.isEmpty()) {
        return;
    }
    finishBody(closeTables);
    step("the footer of a page", [this] { writeTail(); });
    step("the head of a page", [&] { setHead(page); });
    step("the contents entry of a page", [this] { contents_.finishPage(); });
    dispatchPage(last);
}

void PageTurner::setHead(DocHtmlPage& page) {
    const OrxString& styleSheet = context_.settings.styleSheet;
    page.setStyleSheet(styleSheet.isEmpty()
                           ? OrxString()
                           : styleSheetLink_.relativeFile(styleSheet, context_.linkBase()));
    page.setTitle(title_);
    if (navigator_ != nullptr) {
        addNavigator(page);
    }
}

void PageTurner::addNavigator(DocHtmlPage& page) {
    page.appendHead(navigator_->headLines(context_.linkBase()));
    page.setReader(navigator_, context_.out.pageNumber());
}

void PageTurner::writeTop(bool last) {
    DocHtmlPage& page = context_.out.page();
    step("the body tag of a page", [&] {
        page.appendTop("<BODY ");
        page.appendTop(context_.settings.bodyTags);
        page.appendTop(" >\n");
    });
    if (context_.settings.hasArrows()) {
        step("the arrows of a page",
             [&] { page.appendTop(arrows_.bar(context_.out.pageNumber(), last)); });
    }
    if (const DocHtmlSection* const header = context_.out.section(SectionMode::header);
        header != nullptr) {
        step("the header of a page", [&] {
            page.appendTop(stamp(*header));
            page.appendTop("<HR>\n");
        });
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
    step("the style for the next page", [this] { saveTextState(); });
    step("the end of a style", [this] { style_.closeAll(); });
}

void PageTurner::saveTextState() {
    const DocHtmlTextState& state = context_.out.state();
    // Without memory nothing is reopened.
    savedState_.styleName.clear();
    savedState_.fontOpen = false;
    savedState_.font.size = 0;
    savedState_.styleName = state.styleName;
    savedState_.font = state.font;
    savedState_.fontOpen = state.fontOpen;
}

void PageTurner::finishPage(DocHtmlPage& page) {
    if (!page.isEmpty()) {
        step("the contents listing of a page", [&] { contents_.fillListing(page); });
        page.close();
    }
}

void PageTurner::dispatchPage(bool last) {
    DocHtmlPage& page = context_.out.page();
    expectedSize_ = page.bodySize();
    if (last) {
        held_.finishAll([this](DocHtmlPage& heldPage) { finishPage(heldPage); });
        bookmarks_.clear();
    }
    if (!page.hasMarks()) {
        page.close();
        return;
    }
    if (last) {
        finishPage(page);
        // If there is no memory, the page itself is empty and can be used again.
        step("an empty page", [this] { context_.out.setPage(emptyPage()); });
        return;
    }
    const bool isHeld = survive(context_.trace, "the later links of a page", [this] {
        held_.hold(context_.out.pageNumber(), context_.out.sharedPage());
    });
    if (isHeld) {
        context_.out.setPage(next_);
    } else {
        page.close();
    }
}

void PageTurner::recode(Recoding& recoding) {
    recoding.add(title_);
    recoding.add(subDirectory_);
    savedState_.recode(recoding);
}

void PageTurner::releaseHeldPages() {
    held_.finishAll([](DocHtmlPage& page) { page.close(); });
}

}  // namespace quillmark
