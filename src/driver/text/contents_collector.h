#pragma once

#include <cstdint>
#include <string_view>

#include "contents/entries/contents_entry_list.h"
#include "driver/links/bookmark_writer.h"
#include "driver/pages/output_router.h"
#include "page/cached_link.h"

namespace quillmark {

/// Gathers the entries of the contents while the document is written: from explicit blocks, from
/// headings, and one for every page that has none.
///
/// An entry needs an anchor and a text. The anchor is opened in front of a heading's first text;
/// an anchor whose entry never comes stays open, and the next heading's entry points at it.
class ContentsCollector {
public:
    ContentsCollector(OutputRouter& out, BookmarkWriter& bookmarks) noexcept
        : out_(out), bookmarks_(bookmarks) {}

    /// For a new document; an entry that is open stays open.
    void reset() noexcept;
    /// Ends the open entry without adding it.
    void leaveEntry() noexcept { inTocEntry_ = false; }
    void setOutputDir(const OrxString& outputDir) { outputDir_ = outputDir; }
    /// Deepest level that headings enter by themselves; 0 for none.
    void setLevel(std::uint32_t level) noexcept { tocLevel_ = level; }
    void setShowIcons(bool show) noexcept { showIcons_ = show; }
    /// The model element that the following output describes; it chooses the icons.
    void setCurrentElement(std::uint64_t handle) noexcept { currentElement_ = handle; }

    void startEntry();
    void endEntry();
    [[nodiscard]] bool inEntry() const noexcept { return inTocEntry_; }

    /// Opens an anchor when text of a heading of that level is about to come and none is open.
    void openAnchorForHeading(std::uint32_t headingLevel) {
        if (headingLevel != 0 && headingLevel <= tocLevel_ && tocAnchor_.isEmpty()) {
            openAnchor();
        }
    }
    /// Adds to the text of the open entry.
    void collect(std::string_view html) { tocText_.append(html); }
    /// Turns the open anchor and its text, when both are there, into an entry.
    void completeHeading();

    void startPage() noexcept { pageHasTocEntry_ = false; }
    /// Gives a page without an entry its own, and settles the page's top mark.
    void finishPage();
    /// Writes the listing of all entries so far to the page's place for it, if it has one.
    void fillListing(DocHtmlPage& page) const;

    [[nodiscard]] const ContentsEntryList& entries() const noexcept { return entries_; }

private:
    void openAnchor();
    /// Adds an entry and empties `anchor`; without an anchor or a text nothing happens.
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
