#include "component/object/type_information.h"

// There are no type libraries here: hosts ask the interface itself for names and identifiers.

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
