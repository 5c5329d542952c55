#include "component/client/component_library.h"

#include "dochtml/entry_points.h"

namespace quillmark {

Component::Library::~Library() {
    const auto canUnload = reinterpret_cast<DochtmlEntryPoint>(file_.find("DllCanUnloadNow"));
    if (canUnload == nullptr || canUnload() == S_OK) {
        file_.unload();
    }
}

ComPointer<IClassFactory> Component::Library::classObject(const CLSID& classId) const {
    const auto getClassObject =
        reinterpret_cast<DochtmlGetClassObject>(file_.find("DllGetClassObject"));
    if (getClassObject == nullptr) {
        throw ComponentError("the library is not a component", CO_E_ERRORINDLL);
    }
    ComPointer<IClassFactory> factory;
    const HRESULT result = getClassObject(classId, IID_IClassFactory, factory.receive());
    if (FAILED(result)) {
        throw ComponentError("the library does not contain the class", result);
    }
    return factory;
}

}  // namespace quillmark
