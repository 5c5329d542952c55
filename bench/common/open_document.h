#pragma once

#include <string>

#include "common/measure.h"
#include "driver/doc_html.h"

namespace quillmark::bench {

/// A document without contents pages, open for text, that is never finished.
class OpenDocument {
public:
    OpenDocument() { document_.create((freshDirectory(Place::memory) / "report.htm").u16string()); }
    IDocument& operator*() { return document_; }

private:
    DocHtml document_;
};

/// The time of `count` calls of `insertText` through the table of operations.
[[nodiscard]] Seconds secondsOfTable(IDocument& document, const std::u16string& text,
                                     std::size_t count);

}  // namespace quillmark::bench
