#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "foundation/orx_counted_ptr.h"
#include "page/doc_html_page.h"

namespace quillmark {

/// Finished pages that are held back because they carry marks: references to places that do not
/// exist yet, or the place of the contents listing.
class HeldPages {
public:
    void hold(std::uint32_t pageNumber, OrxCountedPtr<DocHtmlPage> page);
    /// Writes a held page whose last mark is filled. A page that is not held is written as well.
    void finish(std::uint32_t pageNumber, DocHtmlPage& page);
    /// Hands over every held page, in the order of their numbers; none is held afterwards.
    void finishAll(const std::function<void(DocHtmlPage&)>& finishPage);

private:
    std::map<std::uint32_t, OrxCountedPtr<DocHtmlPage>> pages_;
};

}  // namespace quillmark
