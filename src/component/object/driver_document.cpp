#include "component/object/driver_document.h"

#include "driver/doc_html.h"

namespace quillmark {

std::unique_ptr<IDocument> makeDriverDocument() {
    return std::make_unique<DocHtml>();
}

}  // namespace quillmark
