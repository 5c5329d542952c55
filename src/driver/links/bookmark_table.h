#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/name_index.h"
#include "foundation/orx_counted_ptr.h"
#include "foundation/orx_string.h"
#include "foundation/pooled_lists.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// A page that waits for a bookmark.
struct WaitingPage {
    OrxCountedPtr<DocHtmlPage> page;
    std::uint32_t number = 0;  // the page number that it is held under
    DocHtmlPage::MarkNameId nameId = DocHtmlPage::unknownName;
};

/// The document's bookmarks: every name that was defined or referred to, and for each the page
/// that holds its anchor or the pages that wait for it.
///
/// A bookmark goes from unknown to referenced to defined and never back; the first definition
/// wins. It holds a few words a name, so that a million of them stay cheap: the anchor's
/// reference is put together when it is asked for.
class BookmarkTable {
public:
    using Id = NameIndex::Id;
    static constexpr Id unknown = NameIndex::none;

    /// The bookmark of that name, registered now when it is new. The last name asked for is found
    /// without a search: the end of a link follows its beginning.
    [[nodiscard]] Id add(std::string_view name);

    [[nodiscard]] bool isDefined(Id id) const noexcept { return records_[id].pageFile != none; }
    /// Registers the page file that holds the anchor.
    void define(Id id, const OrxString& pageFile);
    /// The file of the page that holds the anchor of a defined bookmark.
    [[nodiscard]] std::string_view pageFile(Id id) const noexcept;
    /// Number of that file: equal for bookmarks whose anchors are on one page.
    [[nodiscard]] std::uint32_t pageFileNumber(Id id) const noexcept {
        return records_[id].pageFile;
    }
    /// The anchor's page without directory, "#", the name; for a defined bookmark.
    [[nodiscard]] OrxString reference(Id id) const;
    [[nodiscard]] std::string_view name(Id id) const noexcept { return names_.name(id); }

    /// Lets a page wait. Pages come in the order of their making.
    void addWaiting(Id id, const WaitingPage& page) { waiting_.append(records_[id].waiting, page); }
    /// The page that waits for the bookmark and was made last; null when none does.
    [[nodiscard]] const WaitingPage* lastWaiting(Id id) const noexcept {
        const auto& list = records_[id].waiting;
        return list.isEmpty() ? nullptr : &waiting_.last(list);
    }
    /// Hands over the pages that waited, in the order of their making; none waits afterwards.
    template <typename Each>
    void takeWaiting(Id id, const Each& each) {
        waiting_.take(records_[id].waiting, each);
    }

    void clear() noexcept;

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;
    struct Record {
        std::uint32_t pageFile = none;  // in pageFiles_
        PooledLists<WaitingPage>::List waiting;
    };

    NameIndex names_;
    std::vector<Record> records_;
    PackedTexts pageFiles_;
    PooledLists<WaitingPage> waiting_;
    Id lastAdded_ = unknown;
};

}  // namespace quillmark
