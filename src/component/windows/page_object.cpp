#include "component/object/page_object.h"

#include "component/windows/doc_html_com_page.h"

namespace quillmark {

HRESULT makePageObject(IUnknown* outer, REFIID iid, void** object) noexcept {
    return DocHtmlComPage::make(outer, iid, object);
}

}  // namespace quillmark
