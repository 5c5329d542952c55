#pragma once

#include <cstdint>
#include <string_view>

#include "contents/entries/contents_entry_list.h"
#include "driver/links/bookmark_writer.h"
#include "driver/pages/output_router.h"
#include "page/links/cached_link.h"

namespace quillmark {

/// Collects the entries of the contents while the document is written. Entries come from headings
/// and from `startTOCEntry` blocks. A page without an entry gets one of its own.
///
/// An entry needs an anchor and a text. The anchor is written before the first text of a heading.
/// An anchor that never gets an entry stays open, and the entry of the next heading points to it.
class ContentsCollector {
public:
    ContentsCollector(OutputRouter& out, BookmarkWriter& bookmarks)
        : out_(out), bookmarks_(bookmarks) {}

    /// Converts the texts that stay when a new document starts between two encodings.
    void recode(Recoding& recoding);
    /// Starts a new document. An open entry stays open.
    void reset() noexcept;
    /// Ends the open entry without adding it.
    void leaveEntry() noexcept { inTocEntry_ = false; }
    void setOutputDir(const OrxString& outputDir) { outputDir_ = outputDir; }
    /// Headings down to this level become entries; with 0, none do.
    void setLevel(std::uint32_t level) noexcept { tocLevel_ = level; }
    void setShowIcons(bool show) noexcept { showIcons_ = show; }
    /// Sets the model element that the following output describes. It decides the icons.
    void setCurrentElement(std::uint64_t handle) noexcept { currentElement_ = handle; }

    void startEntry();
    void endEntry();
    [[nodiscard]] bool inEntry() const noexcept { return inTocEntry_; }

    /// Call it before text is written. Opens an anchor if the text is in a heading that becomes an
    /// entry and no anchor is open.
    void openAnchorForHeading(std::uint32_t headingLevel) {
        if (headingLevel != 0 && headingLevel <= tocLevel_ && tocAnchor_.isEmpty()) {
            openAnchor();
        }
    }
    /// Adds to the text of the open entry.
    void collect(std::string_view html) { tocText_.append(html); }
    /// Adds an entry if there is an open anchor with a text.
    void completeHeading();

    void startPage() noexcept { pageHasTocEntry_ = false; }
    /// Ends the page: adds an entry for a page without one, and removes the mark at its top.
    void finishPage();
    /// Writes the listing of all entries so far if the page has a position for it.
    void fillListing(DocHtmlPage& page) const;

    [[nodiscard]] const ContentsEntryList& entries() const noexcept { return entries_; }

private:
    void openAnchor();
    /// Adds the entry of a page that has none.
    void addPageEntry(DocHtmlPage& page);
    /// Adds an entry and clears `anchor`. Does nothing if anchor or text is empty.
    void addEntry(OrxString& anchor, const OrxString& text, std::int32_t level);
    [[nodiscard]] std::int32_t levelOfStyle() const;

    OutputRouter& out_;
    BookmarkWriter& bookmarks_;
    ContentsEntryList entries_;
    OrxString outputDir_;
    CachedLink pageLink_;
    std::uint32_t tocLevel_ = 0;
    bool showIcons_ = true;
    std::uint64_t currentElement_ = 0;
    std::int32_t tocAnchorCount_ = 0;
    OrxString tocAnchor_;
    OrxString tocText_;
    bool pageHasTocEntry_ = false;
    bool inTocEntry_ = false;
};

}  // namespace quillmark
