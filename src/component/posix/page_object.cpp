#include "component/object/page_object.h"

namespace quillmark {

HRESULT makePageObject(IUnknown* /*outer*/, REFIID /*iid*/, void** object) noexcept {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace quillmark
