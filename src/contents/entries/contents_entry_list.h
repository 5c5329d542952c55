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

/// A view of one entry. The texts are valid until the list changes.
struct ContentsEntryView {
    std::string_view href{};
    std::string_view text{};
    std::int32_t level = 0;
    std::string_view gif{};
    std::string_view stereoGif{};
};

/// All contents entries of a document, in the order of their creation.
///
/// A document of 100,000 pages has at least as many entries, so the list is packed. An entry takes
/// the bytes of its href and its text plus 28, without a heap block of its own. Each icon name is
/// stored once.
///
///     ContentsEntryList entries;
///     entries.add({.href = "rep_dtl.htm#toc1", .text = "Introduction", .level = 1});
///     for (const ContentsEntryView entry : entries) { ... }
class ContentsEntryList {
public:
    class Iterator;

    /// Appends a copy of an entry and notifies the document observer. The texts must not be views
    /// into this list. Throws `std::length_error` for an href or a text of 4 GiB or more.
    void add(const ContentsEntryView& entry);
    void add(const HtmlTOCTag& tag);
    void clear() noexcept;

    [[nodiscard]] std::size_t size() const noexcept { return records_.size(); }
    [[nodiscard]] bool isEmpty() const noexcept { return records_.empty(); }
    /// `index` must be below `size()`.
    [[nodiscard]] ContentsEntryView operator[](std::size_t index) const;
    /// A copy of the entry.
    [[nodiscard]] HtmlTOCTag tag(std::size_t index) const;

    [[nodiscard]] Iterator begin() const noexcept;
    [[nodiscard]] Iterator end() const noexcept;

private:
    /// The position of an entry's href; its text follows in the same chunk. Positions are indexes,
    /// so a copy of the list is valid as it is.
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

/// Iterates over a list. It returns views by value.
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
