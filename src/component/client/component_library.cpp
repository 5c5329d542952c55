#include "component/client/component_library.h"

#include "dochtml/entry_points.h"

namespace quillmark {

ComPointer<IClassFactory> Component::Library::classObject(const CLSID& classId) const {
    const auto getClassObject = reinterpret_cast<DochtmlGetClassObject>(find("DllGetClassObject"));
    if (getClassObject == nullptr) {
        throw ComponentError("the library is no component", CO_E_ERRORINDLL);
    }
    ComPointer<IClassFactory> factory;
    const HRESULT result = getClassObject(classId, IID_IClassFactory, factory.receive());
    if (FAILED(result)) {
        throw ComponentError("the library does not serve the class", result);
    }
    return factory;
}

}  // namespace quillmark
