#include "replay/services/component_services.h"

#include <utility>

#include "dochtml/client.h"
#include "replay/services/lent_records.h"

namespace quillmark::replay {

namespace {

void check(HRESULT result) {
    if (FAILED(result)) {
        throw ComponentError("the component does not take a service", result);
    }
}

DochtmlText lend(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

}  // namespace

ComponentServices::ComponentServices(ComPointer<IHostServices> component, HostServices services)
    : component_(std::move(component)), services_(std::move(services)) {
    if (component_) {
        lend();
    }
}

void ComponentServices::lend() {
    if (services_.settings != nullptr) {
        const DochtmlSettingsStore record = recordOf(*services_.settings);
        check(component_->setSettingsStore(&record));
    }
    if (services_.profilePath) {
        const DochtmlText path = replay::lend(*services_.profilePath);
        check(component_->setProfilePath(&path));
    }
    if (services_.imageMaps != nullptr) {
        const DochtmlImageMaps record = recordOf(*services_.imageMaps);
        check(component_->setImageMaps(&record));
    }
    if (services_.model != nullptr) {
        const DochtmlModel record = recordOf(*services_.model);
        check(component_->setModel(&record));
    }
    check(component_->setSchemaType(services_.schemaType));
    for (const HostServices::Drive& drive : services_.drives) {
        const DochtmlText directory = replay::lend(drive.directory);
        check(component_->setDrive(drive.letter, &directory));
    }
    if (services_.traceListener != nullptr) {
        const DochtmlTraceListener record = recordOf(*services_.traceListener);
        check(component_->setTraceListener(&record));
    }
    if (services_.exceptionLog != nullptr) {
        const DochtmlExceptionLog record = recordOf(*services_.exceptionLog);
        check(component_->setExceptionLog(&record));
    }
    if (services_.observer != nullptr) {
        const DochtmlObserver record = recordOf(*services_.observer);
        check(component_->setObserver(&record));
    }
}

ComponentServices::~ComponentServices() {
    if (!component_) {
        return;
    }
    component_->setObserver(nullptr);
    component_->setExceptionLog(nullptr);
    component_->setTraceListener(nullptr);
    for (const HostServices::Drive& drive : services_.drives) {
        component_->setDrive(drive.letter, nullptr);
    }
    component_->setSchemaType(0);
    component_->setModel(nullptr);
    component_->setImageMaps(nullptr);
    component_->setProfilePath(nullptr);
    component_->setSettingsStore(nullptr);
}

}  // namespace quillmark::replay
