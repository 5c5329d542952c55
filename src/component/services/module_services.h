#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

#include "dochtml/callbacks.h"
#include "foundation/module_lifetime.h"
#include "foundation/orx_exception.h"
#include "host/app_profile_interface.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "platform/trace.h"

namespace quillmark {

/// The services that the host provides to this module. Each is an adapter for one of the driver's
/// service interfaces. Null removes a service. The setters return `E_INVALIDARG` for a record that
/// lacks a required callback.
///
/// The driver uses a plain pointer while it calls a service. A service that is replaced or removed
/// therefore stays in memory, and may still be called, as long as there are users that may have
/// fetched the pointer before. The first later change without users frees all such services.
class ModuleServices {
public:
    ModuleServices(const ModuleServices&) = delete;
    ModuleServices& operator=(const ModuleServices&) = delete;

    [[nodiscard]] static ModuleServices& module();

    HRESULT setSettingsStore(const DochtmlSettingsStore* store);
    HRESULT setProfilePath(const DochtmlText* path);
    HRESULT setImageMaps(const DochtmlImageMaps* maps);
    HRESULT setModel(const DochtmlModel* model);
    HRESULT setTraceListener(const DochtmlTraceListener* listener);
    HRESULT setExceptionLog(const DochtmlExceptionLog* log);
    HRESULT setObserver(const DochtmlObserver* observer);
    static HRESULT setSchemaType(LONG schemaType) noexcept;
    static HRESULT setDrive(SHORT letter, const DochtmlText* directory);

    /// How many replaced or removed services are still in memory.
    [[nodiscard]] std::size_t retiredCount() const;

private:
    friend class ModuleLifetime<ModuleServices>;

    ModuleServices() = default;
    /// Removes all services, because none may be used after the library is unloaded.
    ~ModuleServices();

    template <typename Service, typename Record, typename Install>
    HRESULT replace(std::shared_ptr<Service>& kept, const Record* record,
                    std::unique_ptr<Service> (*make)(const Record&), Install install);

    mutable std::mutex mutex_;
    std::shared_ptr<AppProfileInterface> profile_;
    std::shared_ptr<CImageMapInterface> imageMaps_;
    std::shared_ptr<MMSchema> schema_;
    std::shared_ptr<TraceListener> listener_;
    std::shared_ptr<OrxExceptionLog> log_;
    std::shared_ptr<DocumentObserver> observer_;
    std::vector<std::shared_ptr<const void>> retired_;
};

}  // namespace quillmark
