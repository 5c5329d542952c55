#include "component/services/module_services.h"

#include "component/module/module_state.h"
#include "component/services/callback_adapters.h"
#include "component/services/callback_model.h"
#include "component/services/callback_text.h"
#include "foundation/ascii.h"
#include "foundation/module_lifetime.h"
#include "host/quillmark_mode.h"
#include "platform/files/drive_table.h"
#include "settings/register_base.h"

namespace quillmark {
ModuleServices& ModuleServices::module() {
    static ModuleLifetime<ModuleServices> services;
    return *services;
}

ModuleServices::~ModuleServices() {
    DocumentObserver::install(nullptr);
    OrxException::setLog(nullptr);
    Trace::setListener(nullptr);
    MMSchema::setSchema(nullptr);
    CImageMapInterface::setInterface(nullptr);
    AppProfileInterface::setInterface(nullptr);
}

/// Installs a new service. Keeps the previous one, because another thread may have fetched its
/// pointer and not called it yet.
template <typename Service, typename Record, typename Install>
HRESULT ModuleServices::replace(std::shared_ptr<Service>& kept, const Record* record,
                                std::unique_ptr<Service> (*make)(const Record&), Install install) {
    std::shared_ptr<Service> next;
    if (record != nullptr) {
        next = make(*record);
        if (next == nullptr) {
            return E_INVALIDARG;
        }
    }
    const std::lock_guard lock(mutex_);
    if (kept != nullptr) {
        retired_.push_back(kept);
    }
    install(next.get());
    kept = std::move(next);
    if (!servicesHaveUsers()) {
        retired_.clear();
    }
    return S_OK;
}

std::size_t ModuleServices::retiredCount() const {
    const std::lock_guard lock(mutex_);
    return retired_.size();
}

HRESULT ModuleServices::setSettingsStore(const DochtmlSettingsStore* store) {
    if (store == nullptr) {
        RegisterBase::setStore(nullptr);
        return S_OK;
    }
    std::shared_ptr<SettingsStore> adapter = callbackSettingsStore(*store);
    if (adapter == nullptr) {
        return E_INVALIDARG;
    }
    RegisterBase::setStore(std::move(adapter));
    return S_OK;
}

HRESULT ModuleServices::setProfilePath(const DochtmlText* path) {
    return replace(profile_, path, &callbackProfile, &AppProfileInterface::setInterface);
}

HRESULT ModuleServices::setImageMaps(const DochtmlImageMaps* maps) {
    return replace(imageMaps_, maps, &callbackImageMaps, &CImageMapInterface::setInterface);
}

HRESULT ModuleServices::setModel(const DochtmlModel* model) {
    return replace(schema_, model, &callbackModel, &MMSchema::setSchema);
}

HRESULT ModuleServices::setTraceListener(const DochtmlTraceListener* listener) {
    return replace(listener_, listener, &callbackTraceListener, &Trace::setListener);
}

HRESULT ModuleServices::setExceptionLog(const DochtmlExceptionLog* log) {
    return replace(log_, log, &callbackExceptionLog, &OrxException::setLog);
}

HRESULT ModuleServices::setObserver(const DochtmlObserver* observer) {
    return replace(observer_, observer, &callbackObserver, &DocumentObserver::install);
}

HRESULT ModuleServices::setSchemaType(LONG schemaType) noexcept {
    CQuillmarkMode::SetSchemaType(static_cast<int>(schemaType));
    return S_OK;
}

HRESULT ModuleServices::setDrive(SHORT letter, const DochtmlText* directory) {
    if (!ascii::isLetter(letter)) {
        return E_INVALIDARG;
    }
    const std::string_view name = directory == nullptr ? std::string_view() : viewOf(*directory);
    DriveTable::set(static_cast<char>(letter), std::string(name));
    return S_OK;
}

}  // namespace quillmark
