#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "contents/entries/html_toc_tag.h"

namespace quillmark {

/// One entry as the list shows it. The texts live until the list changes.
struct ContentsEntryView {
    std::string_view href{};
    std::string_view text{};
    std::int32_t level = 0;
    std::string_view gif{};
    std::string_view stereoGif{};
};

/// The document's contents: all entries, in the order made.
///
/// A document of 100,000 pages has at least as many entries, so the list is packed: an entry
/// costs the bytes of its href and its text and 28 more, and no heap block of its own. Icon names
/// are kept once each.
///
///     ContentsEntryList entries;
///     entries.add({.href = "rep_dtl.htm#toc1", .text = "Introduction", .level = 1});
///     for (const ContentsEntryView entry : entries) { ... }
class ContentsEntryList {
public:
    class Iterator;

    /// Appends an entry and tells the document observer. The texts are copied; they must not be
    /// views into this very list. `std::length_error` for an href or a text of 4 GiB.
    void add(const ContentsEntryView& entry);
    void add(const HtmlTOCTag& tag);
    void clear() noexcept;

    [[nodiscard]] std::size_t size() const noexcept { return records_.size(); }
    [[nodiscard]] bool isEmpty() const noexcept { return records_.empty(); }
    /// `index` must be below `size()`.
    [[nodiscard]] ContentsEntryView operator[](std::size_t index) const;
    /// The same entry with texts of its own.
    [[nodiscard]] HtmlTOCTag tag(std::size_t index) const;

    [[nodiscard]] Iterator begin() const noexcept;
    [[nodiscard]] Iterator end() const noexcept;

private:
    /// Where an entry's href is; its text stands right behind it in the same chunk. Places are
    /// numbers rather than addresses, so that a copied list needs no fixing up.
    struct Record {
        std::uint32_t chunk = 0;
        std::uint32_t offset = 0;
        std::uint32_t hrefLength = 0;
        std::uint32_t textLength = 0;
        std::int32_t level = 0;
        std::uint32_t gif = 0;
        std::uint32_t stereoGif = 0;
    };

    [[nodiscard]] std::string& chunkFor(std::size_t bytes);
    [[nodiscard]] std::uint32_t intern(std::string_view icon);

    std::deque<Record> records_;
    std::vector<std::string> chunks_;
    std::vector<std::string> icons_;
    std::map<std::string, std::uint32_t, std::less<>> iconNumbers_;
};

/// Walks a list from front to back; each step gives a view by value.
class ContentsEntryList::Iterator {
public:
    Iterator(const ContentsEntryList& list, std::size_t index) noexcept
        : list_(&list), index_(index) {}
    [[nodiscard]] ContentsEntryView operator*() const { return (*list_)[index_]; }
    Iterator& operator++() noexcept {
        ++index_;
        return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) noexcept = default;

private:
    const ContentsEntryList* list_;
    std::size_t index_;
};

inline ContentsEntryList::Iterator ContentsEntryList::begin() const noexcept {
    return {*this, 0};
}
inline ContentsEntryList::Iterator ContentsEntryList::end() const noexcept {
    return {*this, size()};
}

}  // namespace quillmark
