#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/name_table.h"
#include "foundation/orx_counted_ptr.h"
#include "foundation/orx_string.h"
#include "foundation/pooled_lists.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// A page with links to a bookmark that is not defined yet.
struct WaitingPage {
    OrxCountedPtr<DocHtmlPage> page;
    std::uint32_t number = 0;  // its key in `HeldPages`
    DocHtmlPage::MarkNameId nameId = DocHtmlPage::unknownName;
};

/// The bookmarks of a document: every name that was defined or referred to. For each one it knows
/// the page with the anchor, or the pages that wait for it.
///
/// A bookmark goes from unknown to referenced to defined, and never back. The first definition
/// wins. A bookmark takes only a few words of memory, because its reference is not stored.
class BookmarkTable {
public:
    using Id = NameTable::Id;
    static constexpr Id unknown = NameTable::none;

    /// Returns the bookmark with that name and adds it when it is new. Asking for the same name
    /// twice in a row is fast, because a link asks at its start and at its end.
    [[nodiscard]] Id add(std::string_view name);

    [[nodiscard]] bool isDefined(Id id) const noexcept { return records_[id].pageFile != none; }
    /// Defines the bookmark: its anchor is in that page file.
    void define(Id id, const OrxString& pageFile);
    /// Takes the definition back.
    void undefine(Id id) noexcept { records_[id].pageFile = none; }
    /// The page file with the anchor. The bookmark must be defined.
    [[nodiscard]] std::string_view pageFile(Id id) const noexcept;
    /// A number for that file: the same for bookmarks on the same page.
    [[nodiscard]] std::uint32_t pageFileNumber(Id id) const noexcept {
        return records_[id].pageFile;
    }
    /// The file name without its directory, "#" and the name. The bookmark must be defined.
    [[nodiscard]] OrxString reference(Id id) const;
    [[nodiscard]] std::string_view name(Id id) const noexcept { return names_.name(id); }

    /// Adds a page that waits for the bookmark. Pages are added in the order of their creation.
    void addWaiting(Id id, const WaitingPage& page) { waiting_.append(records_[id].waiting, page); }
    /// The newest page that waits for the bookmark; null when none does.
    [[nodiscard]] const WaitingPage* lastWaiting(Id id) const noexcept {
        const auto& list = records_[id].waiting;
        return list.isEmpty() ? nullptr : &waiting_.last(list);
    }
    /// Passes the waiting pages to `each`, oldest first. No page waits afterwards.
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

    NameTable names_;
    std::vector<Record> records_;
    PackedStrings pageFiles_;
    PooledLists<WaitingPage> waiting_;
    Id lastAdded_ = unknown;
};

}  // namespace quillmark
