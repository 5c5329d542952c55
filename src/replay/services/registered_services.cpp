#include "replay/services/registered_services.h"

#include <utility>

#include "host/quillmark_mode.h"
#include "settings/register_base.h"

namespace quillmark::replay {

RegisteredServices::RegisteredServices(HostServices services) : services_(std::move(services)) {
    RegisterBase::setStore(services_.settings);
    if (services_.profilePath) {
        profile_.emplace(*services_.profilePath);
        earlierProfile_ = AppProfileInterface::setInterface(&*profile_);
    }
    earlierImageMaps_ = CImageMapInterface::setInterface(services_.imageMaps);
    earlierModel_ = MMSchema::setSchema(services_.model);
    earlierSchemaType_ = CQuillmarkMode::GetSchemaType();
    CQuillmarkMode::SetSchemaType(services_.schemaType);
    earlierListener_ = Trace::setListener(services_.traceListener);
    earlierLog_ = OrxException::setLog(services_.exceptionLog);
    earlierObserver_ = DocumentObserver::install(services_.observer);
}

RegisteredServices::~RegisteredServices() {
    DocumentObserver::install(earlierObserver_);
    OrxException::setLog(earlierLog_);
    Trace::setListener(earlierListener_);
    CQuillmarkMode::SetSchemaType(earlierSchemaType_);
    MMSchema::setSchema(earlierModel_);
    CImageMapInterface::setInterface(earlierImageMaps_);
    if (profile_) {
        AppProfileInterface::setInterface(earlierProfile_);
    }
    RegisterBase::setStore(nullptr);
}

}  // namespace quillmark::replay
