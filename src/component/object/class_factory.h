#pragma once

#include <atomic>

#include "component/module/module_state.h"
#include "dochtml/automation.h"
#include "dochtml/file_confinement.h"
#include "dochtml/host_services.h"

namespace quillmark {

/// Creates an object of a class for `IClassFactory::CreateInstance`. Must not throw.
using ObjectMaker = HRESULT (*)(IUnknown* outer, REFIID iid, void** object);

/// The class object of one class. Each also offers `IHostServices`; the services are the same for
/// the whole module.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its last release deletes it.
class ClassFactory final : public IClassFactory, public IHostServices, public IFileConfinement {
public:
    /// Creates a class object and returns the requested interface in `object`.
    static HRESULT make(ObjectMaker maker, REFIID iid, void** object);

    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

    HRESULT STDMETHODCALLTYPE setSettingsStore(const DochtmlSettingsStore* store) override;
    HRESULT STDMETHODCALLTYPE setProfilePath(const DochtmlText* path) override;
    HRESULT STDMETHODCALLTYPE setImageMaps(const DochtmlImageMaps* maps) override;
    HRESULT STDMETHODCALLTYPE setModel(const DochtmlModel* model) override;
    HRESULT STDMETHODCALLTYPE setSchemaType(LONG schemaType) override;
    HRESULT STDMETHODCALLTYPE setDrive(SHORT letter, const DochtmlText* directory) override;
    HRESULT STDMETHODCALLTYPE setTraceListener(const DochtmlTraceListener* listener) override;
    HRESULT STDMETHODCALLTYPE setExceptionLog(const DochtmlExceptionLog* log) override;
    HRESULT STDMETHODCALLTYPE setObserver(const DochtmlObserver* observer) override;

    HRESULT STDMETHODCALLTYPE setConfinement(const DochtmlConfinement* confinement) override;

private:
    explicit ClassFactory(ObjectMaker maker) noexcept : maker_(maker) {}
    ~ClassFactory() = default;

    LiveObject live_;
    std::atomic<ULONG> count_{1};
    ObjectMaker maker_;
};

}  // namespace quillmark
