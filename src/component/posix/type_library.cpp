#include "component/object/type_information.h"

// This system has no type libraries. Hosts look up names with `IDispatch::GetIDsOfNames`.

namespace quillmark {

UINT documentTypeInfoCount() noexcept {
    return 0;
}

HRESULT documentTypeInfo(LCID /*locale*/, ITypeInfo** /*info*/) {
    return DISP_E_BADINDEX;
}

HRESULT registerTypeLibrary() {
    return S_OK;
}

HRESULT unregisterTypeLibrary() {
    return S_OK;
}

}  // namespace quillmark
