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

/// The services that a host has lent the module, each behind the contract that the driver knows.
/// Null takes one back; `E_INVALIDARG` answers a record that lacks a callback it must have.
///
/// The driver holds a service by a plain pointer while it calls it. So a service that is replaced
/// or taken back stays in memory, and may still be called, as long as anybody is there who could
/// have taken it up before; the next change without such a user lets go of all of these.
class LentServices {
public:
    LentServices(const LentServices&) = delete;
    LentServices& operator=(const LentServices&) = delete;

    [[nodiscard]] static LentServices& module();

    HRESULT setSettingsStore(const DochtmlSettingsStore* store);
    HRESULT setProfilePath(const DochtmlText* path);
    HRESULT setImageMaps(const DochtmlImageMaps* maps);
    HRESULT setModel(const DochtmlModel* model);
    HRESULT setTraceListener(const DochtmlTraceListener* listener);
    HRESULT setExceptionLog(const DochtmlExceptionLog* log);
    HRESULT setObserver(const DochtmlObserver* observer);
    static HRESULT setSchemaType(LONG schemaType) noexcept;
    static HRESULT setDrive(SHORT letter, const DochtmlText* directory);

    /// How many services are out of force and still kept.
    [[nodiscard]] std::size_t retiredCount() const;

private:
    friend class ModuleLifetime<LentServices>;

    LentServices() = default;
    /// When the library is unloaded nothing lent may be looked at any more.
    ~LentServices();

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
