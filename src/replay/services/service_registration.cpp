#include "replay/services/service_registration.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "dochtml/client.h"
#include "dochtml/file_confinement.h"
#include "replay/services/callback_guard.h"
#include "replay/services/service_callbacks.h"

namespace quillmark::replay {

namespace {

void checkMemory(HRESULT result) {
    if (result == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
}

void check(HRESULT result) {
    checkMemory(result);
    if (FAILED(result)) {
        throw ComponentError("the component refused a host service", result);
    }
}

DochtmlText textOf(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

std::vector<DochtmlText> textsOf(const std::vector<std::string>& names) {
    std::vector<DochtmlText> texts;
    std::ranges::transform(names, std::back_inserter(texts), textOf);
    return texts;
}

void hearRefusal(void* context, const DochtmlText* name, LONG access) {
    guarded([&] {
        const char* const verb = access == dochtmlWrite   ? "write "
                                 : access == dochtmlStart ? "start "
                                                          : "read ";
        static_cast<const FilesInReach*>(context)->refused(verb +
                                                           std::string(name->data, name->size));
    });
}

}  // namespace

ServiceRegistration::ServiceRegistration(ComPointer<IHostServices> component, HostServices services)
    : component_(std::move(component)), services_(std::move(services)) {
    try {
        // First, so that nothing has been provided to a component that cannot confine itself.
        if (services_.filesInReach) {
            confine();
        }
        if (component_) {
            provide();
        }
    } catch (...) {
        takeBack();
        throw;
    }
}

void ServiceRegistration::confine() {
    const auto confinement = component_ ? component_.query<IFileConfinement>(IID_IFileConfinement)
                                        : ComPointer<IFileConfinement>();
    if (!confinement) {
        throw ComponentError("the component cannot confine its files", E_NOINTERFACE);
    }
    const std::vector<DochtmlText> writable = textsOf(services_.filesInReach->writable);
    const std::vector<DochtmlText> readable = textsOf(services_.filesInReach->readable);
    const DochtmlConfinement record{&*services_.filesInReach, writable.data(), writable.size(),
                                    readable.data(),          readable.size(), &hearRefusal};
    const HRESULT result = confinement->setConfinement(&record);
    checkMemory(result);
    if (FAILED(result)) {
        throw ComponentError("--confine is not available on this system", E_NOTIMPL);
    }
    confined_ = true;
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
    takeBack();
}

void ServiceRegistration::takeBack() noexcept {
    if (!component_) {
        return;
    }
    if (confined_) {
        component_.query<IFileConfinement>(IID_IFileConfinement)->setConfinement(nullptr);
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
