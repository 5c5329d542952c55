#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "foundation/orx_counted_ptr.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// Finished pages that are not written yet because they have open marks: references to bookmarks
/// that are not defined yet, or the position of a contents listing.
class HeldPages {
public:
    /// Keeps a page under its number.
    void hold(std::uint32_t pageNumber, OrxCountedPtr<DocHtmlPage> page);
    /// Writes a page whose last mark has been filled, and forgets it if it is held.
    void finish(std::uint32_t pageNumber, DocHtmlPage& page);
    /// Passes every held page to `finishPage` in the order of their numbers. No page is held
    /// afterwards.
    void finishAll(const std::function<void(DocHtmlPage&)>& finishPage);

private:
    std::map<std::uint32_t, OrxCountedPtr<DocHtmlPage>> pages_;
};

}  // namespace quillmark
