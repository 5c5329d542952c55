#include "driver/pages/held_pages.h"

#include <utility>

namespace quillmark {

void HeldPages::hold(std::uint32_t pageNumber, OrxCountedPtr<DocHtmlPage> page) {
    page->compact();
    pages_[pageNumber] = std::move(page);
}

void HeldPages::finish(std::uint32_t pageNumber, DocHtmlPage& page) {
    page.close();
    const auto held = pages_.find(pageNumber);
    if (held != pages_.end() && held->second.get() == &page) {
        pages_.erase(held);
    }
}

void HeldPages::finishAll(const std::function<void(DocHtmlPage&)>& finishPage) {
    const auto all = std::exchange(pages_, {});
    for (const auto& [number, page] : all) {
        finishPage(*page);
    }
}

}  // namespace quillmark
