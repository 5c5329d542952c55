#include "driver/text/contents_collector.h"

#include <string>
#include <utility>

#include "contents/entries/entry_icons.h"
#include "contents/static_listing.h"
#include "driver/text/style_names.h"
#include "page/marks/page_marks.h"

namespace quillmark {

void ContentsCollector::reset() noexcept {
    entries_.clear();
    tocAnchorCount_ = 0;
}

void ContentsCollector::recode(Recoding& recoding) {
    recoding.add(tocAnchor_);
    recoding.add(tocText_);
}

void ContentsCollector::openAnchor() {
    const std::string name = "toc" + std::to_string(++tocAnchorCount_);
    bookmarks_.define(name, BookmarkWriter::Origin::driver);
    tocAnchor_ = name;
    tocText_.clear();
}

void ContentsCollector::startEntry() {
    inTocEntry_ = true;
    tocAnchor_.clear();
    tocText_.clear();
    openAnchor();
}

void ContentsCollector::endEntry() {
    inTocEntry_ = false;
    addEntry(tocAnchor_, tocText_, levelOfStyle());
}

void ContentsCollector::completeHeading() {
    if (tocLevel_ != 0 && !tocAnchor_.isEmpty() && !tocText_.isEmpty()) {
        addEntry(tocAnchor_, tocText_, levelOfStyle());
    }
}

std::int32_t ContentsCollector::levelOfStyle() const {
    const OrxString& style = out_.state().styleName;
    if (style.isEmpty()) {
        return static_cast<std::int32_t>(tocLevel_);
    }
    // The style need not be a heading: every name is read as if it were one.
    return style_names::levelAfter(style_names::heading, style);
}

void ContentsCollector::addEntry(OrxString& anchor, const OrxString& text, std::int32_t level) {
    if (anchor.isEmpty() || text.isEmpty()) {
        return;
    }
    // Without memory the entry is lost. Its anchor must not get the next entry's text.
    const OrxString target = std::exchange(anchor, {});
    OrxString href = pageLink_.relativeFile(out_.page().getFileName(), outputDir_);
    href.append('#').append(target);
    const EntryIcons icons = showIcons_ ? entryIconsOf(currentElement_) : EntryIcons{};
    entries_.add(ContentsEntryView{href, text, level, icons.gif, icons.stereoGif});
    pageHasTocEntry_ = true;
}

void ContentsCollector::addPageEntry(DocHtmlPage& page) {
    if (pageHasTocEntry_) {
        return;
    }
    OrxString anchor = "Page " + OrxString(std::to_string(out_.pageNumber()));
    addEntry(anchor, OrxString(anchor), 1);
    if (page.setInsertPoint(page_marks::topOfPage)) {
        // This anchor stays open: the next heading's entry will point to the top of this page.
        openAnchor();
        page.clearInsertPoint();
    }
}

void ContentsCollector::finishPage() {
    DocHtmlPage& page = out_.page();
    try {
        addPageEntry(page);
    } catch (...) {
        page.removeMarks(page_marks::topOfPage);
        throw;
    }
    page.removeMarks(page_marks::topOfPage);
}

void ContentsCollector::fillListing(DocHtmlPage& page) const {
    if (!page.setInsertPoint(page_marks::contentsListing)) {
        return;
    }
    try {
        writeStaticListing(entries_, page);
    } catch (...) {
        page.removeMarks(page_marks::contentsListing);
        throw;
    }
    page.clearInsertPoint();
    page.removeMarks(page_marks::contentsListing);
}

}  // namespace quillmark
