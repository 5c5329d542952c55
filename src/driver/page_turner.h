#pragma once

#include <functional>

#include "driver/links/bookmark_writer.h"
#include "driver/pages/arrow_bar.h"
#include "driver/pages/document_context.h"
#include "driver/pages/held_pages.h"
#include "driver/text/contents_collector.h"
#include "driver/text/font_writer.h"
#include "driver/text/paragraph_style.h"

namespace quillmark {

/// Begins and ends the pages of a document.
///
/// Ending a page closes what is open in the body, stamps header, footer and arrows onto the page
/// and writes it, or holds it back while it carries marks. Beginning the next one opens the text
/// state again that was closed.
class PageTurner {
public:
    PageTurner(DocumentContext& context, HeldPages& held, BookmarkWriter& bookmarks,
               ContentsCollector& contents, FontWriter& font, ParagraphStyle& style) noexcept
        : context_(context),
          held_(held),
          bookmarks_(bookmarks),
          contents_(contents),
          font_(font),
          style_(style),
          arrows_(context) {}

    /// Makes a new page the current one, with its anchor and the text state that goes on.
    void startPage();
    /// `closeTables` ends every open table, through the document's own interface. The last page's
    /// end also finishes every page that was held back.
    void endPage(bool last, const std::function<void()>& closeTables);
    /// Makes a fresh, empty page the current one.
    void newPage();
    /// Writes the pages that a document before this one left held back.
    void releaseHeldPages();

    void setTitle(const OrxString& title) { title_ = title; }
    [[nodiscard]] const OrxString& title() const noexcept { return title_; }

    /// The directory of the following pages, and of this one from now on.
    void setSubDirectory(const OrxString& directory) { subDirectory_ = directory; }
    [[nodiscard]] const OrxString& subDirectory() const noexcept { return subDirectory_; }
    /// The current page's file in the directory now in force.
    [[nodiscard]] OrxString pageFileName() const;

private:
    void writeTop(bool last);
    void writeTail();
    /// The section's text for this page. A font that the section left open becomes the body's
    /// and stays it.
    [[nodiscard]] OrxString stamp(const DocHtmlSection& section);
    void finishBody(const std::function<void()>& closeTables);
    void dispatchPage(bool last);
    void reopenTextState();

    DocumentContext& context_;
    HeldPages& held_;
    BookmarkWriter& bookmarks_;
    ContentsCollector& contents_;
    FontWriter& font_;
    ParagraphStyle& style_;
    OrxString title_;
    OrxString subDirectory_;
    DocHtmlTextState savedState_;
    ArrowBar arrows_;
    CachedLink styleSheetLink_;
    /// Bytes in the body of the page before this one.
    std::size_t expectedSize_ = 0;
};

}  // namespace quillmark
