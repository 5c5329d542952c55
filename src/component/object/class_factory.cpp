#include "component/object/class_factory.h"

#include "component/module/boundary.h"
#include "component/services/module_confinement.h"
#include "component/services/module_services.h"

namespace quillmark {

HRESULT ClassFactory::make(ObjectMaker maker, REFIID iid, void** object) {
    return runGuarded([&]() -> HRESULT {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): counted; its last release deletes it.
        auto* factory = new ClassFactory(maker);
        const HRESULT result = factory->QueryInterface(iid, object);
        factory->Release();
        return result;
    });
}

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory)) {
        *object = static_cast<IClassFactory*>(this);
    } else if (IsEqualIID(iid, IID_IHostServices)) {
        *object = static_cast<IHostServices*>(this);
    } else if (IsEqualIID(iid, IID_IFileConfinement)) {
        *object = static_cast<IFileConfinement*>(this);
    } else {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG ClassFactory::Release() {
    const ULONG left = --count_;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
    return maker_(outer, iid, object);
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    lockModule(lock != 0);
    return S_OK;
}

HRESULT ClassFactory::setSettingsStore(const DochtmlSettingsStore* store) {
    return runGuarded([&] { return ModuleServices::module().setSettingsStore(store); });
}

HRESULT ClassFactory::setProfilePath(const DochtmlText* path) {
    return runGuarded([&] { return ModuleServices::module().setProfilePath(path); });
}

HRESULT ClassFactory::setImageMaps(const DochtmlImageMaps* maps) {
    return runGuarded([&] { return ModuleServices::module().setImageMaps(maps); });
}

HRESULT ClassFactory::setModel(const DochtmlModel* model) {
    return runGuarded([&] { return ModuleServices::module().setModel(model); });
}

HRESULT ClassFactory::setSchemaType(LONG schemaType) {
    return ModuleServices::setSchemaType(schemaType);
}

HRESULT ClassFactory::setDrive(SHORT letter, const DochtmlText* directory) {
    return runGuarded([&] { return ModuleServices::setDrive(letter, directory); });
}

HRESULT ClassFactory::setTraceListener(const DochtmlTraceListener* listener) {
    return runGuarded([&] { return ModuleServices::module().setTraceListener(listener); });
}

HRESULT ClassFactory::setExceptionLog(const DochtmlExceptionLog* log) {
    return runGuarded([&] { return ModuleServices::module().setExceptionLog(log); });
}

HRESULT ClassFactory::setObserver(const DochtmlObserver* observer) {
    return runGuarded([&] { return ModuleServices::module().setObserver(observer); });
}

HRESULT ClassFactory::setConfinement(const DochtmlConfinement* confinement) {
    return runGuarded([&] { return setModuleConfinement(confinement); });
}

}  // namespace quillmark
