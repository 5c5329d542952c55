#include "dochtml/entry_points.h"

#include "component/module/boundary.h"
#include "component/module/module_state.h"
#include "component/object/class_factory.h"
#include "component/object/document_object.h"
#include "component/object/driver_document.h"
#include "component/object/page_object.h"
#include "component/registration/server_registration.h"
#include "platform/files/file_failure.h"

namespace quillmark {
namespace {

HRESULT createDocumentObject(IUnknown* outer, REFIID iid, void** object) {
    return DocumentObject::make(&makeDriverDocument, outer, iid, object);
}

ObjectMaker findClass(REFCLSID classId) noexcept {
    if (IsEqualIID(classId, CLSID_DocHtml)) {
        return &createDocumentObject;
    }
    return IsEqualIID(classId, CLSID_HtmlComPage) ? &makePageObject : nullptr;
}

/// Lets the caller find the system's reason of a failure where the system itself puts it.
HRESULT changeRegistration(HRESULT (*change)()) noexcept {
    FileFailure::forget();
    const HRESULT result = runGuarded(change);
    if (FAILED(result)) {
        FileFailure::passOn();
    }
    return result;
}

}  // namespace
}  // namespace quillmark

// The functions that the library exports. The linker's list of them is in windows/dochtmlcom.def or
// posix/dochtmlcom.map.

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    const auto maker = quillmark::findClass(classId);
    return maker == nullptr ? CLASS_E_CLASSNOTAVAILABLE
                            : quillmark::ClassFactory::make(maker, iid, object);
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() {
    return quillmark::moduleIsIdle() ? S_OK : S_FALSE;
}

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
    return quillmark::changeRegistration(&quillmark::registerServer);
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
    return quillmark::changeRegistration(&quillmark::unregisterServer);
}
