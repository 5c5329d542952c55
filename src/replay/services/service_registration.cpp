#include "replay/services/service_registration.h"

#include <utility>

#include "dochtml/client.h"
#include "replay/services/service_callbacks.h"

namespace quillmark::replay {

namespace {

void check(HRESULT result) {
    if (FAILED(result)) {
        throw ComponentError("the component refused a host service", result);
    }
}

DochtmlText textOf(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

}  // namespace

ServiceRegistration::ServiceRegistration(ComPointer<IHostServices> component, HostServices services)
    : component_(std::move(component)), services_(std::move(services)) {
    if (component_) {
        provide();
    }
}

void ServiceRegistration::provide() {
    if (services_.settings != nullptr) {
        const DochtmlSettingsStore record = callbacksOf(*services_.settings);
        check(component_->setSettingsStore(&record));
    }
    if (services_.profilePath) {
        const DochtmlText path = textOf(*services_.profilePath);
        check(component_->setProfilePath(&path));
    }
    if (services_.imageMaps != nullptr) {
        const DochtmlImageMaps record = callbacksOf(*services_.imageMaps);
        check(component_->setImageMaps(&record));
    }
    if (services_.model != nullptr) {
        const DochtmlModel record = callbacksOf(*services_.model);
        check(component_->setModel(&record));
    }
    check(component_->setSchemaType(services_.schemaType));
    for (const Drive& drive : services_.drives) {
        const DochtmlText directory = textOf(drive.directory);
        check(component_->setDrive(drive.letter, &directory));
    }
    traceLevelChanged();
    if (services_.exceptionLog != nullptr) {
        const DochtmlExceptionLog record = callbacksOf(*services_.exceptionLog);
        check(component_->setExceptionLog(&record));
    }
    if (services_.observer != nullptr) {
        const DochtmlObserver record = callbacksOf(*services_.observer);
        check(component_->setObserver(&record));
    }
}

void ServiceRegistration::traceLevelChanged() {
    if (component_ && services_.traceListener != nullptr) {
        const DochtmlTraceListener record = callbacksOf(*services_.traceListener);
        check(component_->setTraceListener(&record));
    }
}

ServiceRegistration::~ServiceRegistration() {
    if (!component_) {
        return;
    }
    component_->setObserver(nullptr);
    component_->setExceptionLog(nullptr);
    component_->setTraceListener(nullptr);
    for (const Drive& drive : services_.drives) {
        component_->setDrive(drive.letter, nullptr);
    }
    component_->setSchemaType(0);
    component_->setModel(nullptr);
    component_->setImageMaps(nullptr);
    component_->setProfilePath(nullptr);
    component_->setSettingsStore(nullptr);
}

}  // namespace quillmark::replay
