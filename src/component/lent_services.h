#pragma once

#include <memory>
#include <mutex>

#include "dochtml/callbacks.h"
#include "foundation/orx_exception.h"
#include "platform/app_profile_interface.h"
#include "platform/document_observer.h"
#include "platform/image_map_interface.h"
#include "platform/metamodel.h"
#include "platform/trace.h"

namespace quillmark {

/// The services that a host has lent the module, each behind the contract that the driver knows.
/// Null takes one back; `E_INVALIDARG` answers a record that lacks a callback it must have.
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

private:
    LentServices() = default;
    /// When the library is unloaded nothing lent may be looked at any more.
    ~LentServices();

    std::mutex mutex_;
    std::unique_ptr<AppProfileInterface> profile_;
    std::unique_ptr<CImageMapInterface> imageMaps_;
    std::unique_ptr<MMSchema> schema_;
    std::unique_ptr<TraceListener> listener_;
    std::unique_ptr<OrxExceptionLog> log_;
    std::unique_ptr<DocumentObserver> observer_;
};

}  // namespace quillmark
