#pragma once

#include <functional>
#include <memory>

#include "driver/links/bookmark_writer.h"
#include "driver/pages/arrow_bar.h"
#include "driver/pages/document_context.h"
#include "driver/pages/held_pages.h"
#include "driver/text/contents_collector.h"
#include "driver/text/font_writer.h"
#include "driver/text/paragraph_style.h"
#include "navigator/navigator.h"
#include "platform/out_of_memory.h"

namespace quillmark {

/// Starts and ends the pages of a document.
///
/// The end of a page closes everything that is open in the body and adds header, footer and
/// arrows. Then the page is written, or held back while it has open marks. The start of the next
/// page reopens style and font.
class PageTurner {
public:
    PageTurner(DocumentContext& context, HeldPages& held, BookmarkWriter& bookmarks,
               ContentsCollector& contents, FontWriter& font, ParagraphStyle& style)
        : context_(context),
          held_(held),
          bookmarks_(bookmarks),
          contents_(contents),
          font_(font),
          style_(style),
          arrows_(context) {}

    /// Makes the next page, with that number. If it throws, nothing has changed. Everything after
    /// it takes what memory there is, and does without the rest.
    void preparePage(std::uint32_t number);
    /// Makes the prepared page the current one, writes its anchor, and reopens style and font.
    void startPage();
    /// Ends the current page. `closeTables` must end every open table through the document's own
    /// interface, so that the calls are traced. The end of the last page also writes every page
    /// that was held back.
    void endPage(bool last, const std::function<void()>& closeTables);
    /// Writes the pages that an earlier document left held back.
    void releaseHeldPages();

    /// Gives the pages that end from now on a navigator; null for none.
    void setNavigator(std::shared_ptr<Navigator> navigator) { navigator_ = std::move(navigator); }

    /// Converts the texts that stay when a new document starts between two encodings.
    void recode(Recoding& recoding);

    void setTitle(const OrxString& title) { title_ = title; }
    [[nodiscard]] const OrxString& title() const noexcept { return title_; }

    /// Sets the directory of the following pages.
    void setSubDirectory(const OrxString& directory) { subDirectory_ = directory; }
    [[nodiscard]] const OrxString& subDirectory() const noexcept { return subDirectory_; }
    /// The file of the current page in the subdirectory that is set now.
    [[nodiscard]] OrxString pageFileName() const;

private:
    /// Runs a step of a page's end or start, which is lost if there is no memory for it.
    template <typename Step>
    void step(const char* what, const Step& body) {
        survive(context_.trace, what, body);
    }

    [[nodiscard]] OrxCountedPtr<DocHtmlPage> emptyPage() const;
    void writeTop(bool last);
    void writeTail();
    void saveTextState();
    void setHead(DocHtmlPage& page);
    void finishPage(DocHtmlPage& page);
    /// The section's text for this page. A font that the section left open becomes the body's font.
    [[nodiscard]] OrxString stamp(const DocHtmlSection& section);
    void finishBody(const std::function<void()>& closeTables);
    void addNavigator(DocHtmlPage& page);
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
    std::shared_ptr<Navigator> navigator_;
    OrxCountedPtr<DocHtmlPage> next_;
    /// The size in bytes of the previous page's body.
    std::size_t expectedSize_ = 0;
};

}  // namespace quillmark
