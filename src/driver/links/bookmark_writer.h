#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "driver/links/bookmark_table.h"
#include "driver/pages/held_pages.h"
#include "driver/pages/output_router.h"
#include "platform/trace.h"

namespace quillmark {

/// Writes the anchors of bookmarks and the links to them. A link may come before its bookmark.
///
/// A link to a bookmark that is not defined yet leaves marks in the current page. When the
/// bookmark is defined, the marks are filled on every page that waits for it. A finished page is
/// written as soon as its last mark is filled.
class BookmarkWriter {
public:
    /// Who defines a bookmark: the host, or the driver for its pages and contents entries. It
    /// decides the trace level of the warning about a second definition.
    enum class Origin { host, driver };

    BookmarkWriter(OutputRouter& out, HeldPages& held, Trace& trace) noexcept
        : out_(out), held_(held), trace_(trace) {}

    /// Writes the anchor to the current page and fills the marks that wait for it. An empty name
    /// does nothing. A name that is already defined only causes a warning in the trace.
    void define(std::string_view name, Origin origin);

    /// Writes `markup`, with the link attribute instead of the first occurrence of `name` in it.
    /// Leaves a mark instead while the bookmark is not defined. An empty markup means the link
    /// attribute alone.
    void reference(std::string_view name, std::string_view markup);

    void clear() noexcept {
        table_.clear();
        lastRoute_ = {};
    }

private:
    void writeAnchor(BookmarkTable::Id id, std::string_view name);
    void resolve(BookmarkTable::Id id, std::string_view name);
    void writeReference(BookmarkTable::Id id, std::string_view name, std::string_view markup);
    /// The link from a page to the bookmark. It is valid until the next call.
    [[nodiscard]] std::string_view relativeReference(BookmarkTable::Id id, const DocHtmlPage& page);

    void findRoute(std::string_view target, const OrxString& fromPage);

    OutputRouter& out_;
    HeldPages& held_;
    Trace& trace_;
    BookmarkTable table_;

    /// The part of a link before the bookmark's name. It is kept because thousands of links in a
    /// row may lead from the same page to the same page.
    struct Route {
        OrxString fromPage;
        std::size_t fromFile = 0;  // where the file part of `fromPage` starts
        std::uint32_t toPage = 0;
        OrxString link;
    };
    Route lastRoute_;

    // Members only to reuse their memory.
    std::string anchor_;
    std::string reference_;
    OrxString filePart_;
};

}  // namespace quillmark
