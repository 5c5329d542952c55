#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "driver/links/bookmark_table.h"
#include "driver/pages/held_pages.h"
#include "driver/pages/output_router.h"
#include "platform/trace.h"

namespace quillmark {

/// Named places and the links to them, also to places that do not exist yet.
///
/// A link to an unknown place leaves marks in the current page; the definition fills the marks of
/// every page that waits, and a page that is finished and whose last mark is filled is written at
/// that moment.
class BookmarkWriter {
public:
    /// Who defines: the host's own tags, or the driver for its pages and contents entries. It
    /// only decides at which trace level a second definition is told.
    enum class Origin { host, driver };

    BookmarkWriter(OutputRouter& out, HeldPages& held, Trace& trace) noexcept
        : out_(out), held_(held), trace_(trace) {}

    /// Writes the anchor to the current page and fills what waits for it. An empty name does
    /// nothing; a name defined before only gets its warning.
    void define(std::string_view name, Origin origin);

    /// Writes `markup` with the link in the place of the name's first occurrence, or leaves a mark
    /// for it. An empty markup is the bare link attribute.
    void reference(std::string_view name, std::string_view markup);

    void clear() noexcept {
        table_.clear();
        lastRoute_ = {};
    }

private:
    void writeAnchor(BookmarkTable::Id id, std::string_view name);
    void resolve(BookmarkTable::Id id, std::string_view name);
    void writeReference(std::string_view name, std::string_view markup, std::string_view reference);
    /// The bookmark's reference as seen from a page; it lives until the next call.
    [[nodiscard]] std::string_view relativeReference(BookmarkTable::Id id, const DocHtmlPage& page);

    OutputRouter& out_;
    HeldPages& held_;
    Trace& trace_;
    BookmarkTable table_;

    /// What stands in front of a bookmark's name, from one page to another: thousands of links in
    /// a row go the same way.
    struct Route {
        OrxString fromPage;
        std::uint32_t toPage = 0;
        OrxString link;
    };
    Route lastRoute_;

    // Kept between calls for their memory alone.
    std::string anchor_;
    std::string reference_;
};

}  // namespace quillmark
