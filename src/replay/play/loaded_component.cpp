#include "replay/play/loaded_component.h"

#include <new>

#include "command_line/installed_files.h"
#include "replay/play/component_document.h"
#include "replay/services/service_registration.h"

namespace quillmark::replay {

namespace {

constexpr const char* programIdentifier = "DocHtml.DocHtml.2.1.0";

}  // namespace

std::unique_ptr<LateBoundDocument> LoadedComponent::makeDocument() {
    try {
        auto dispatch = component().createDocument().query<IDispatch>(IID_IDispatch);
        return std::make_unique<ComponentDocument>(std::move(dispatch));
    } catch (const ComponentError& failure) {
        if (failure.result() == E_OUTOFMEMORY) {
            throw std::bad_alloc();
        }
        throw;
    }
}

std::shared_ptr<ProvidedServices> LoadedComponent::provide(const HostServices& services) {
    return std::make_shared<ServiceRegistration>(component().hostServices(), services);
}

const Component& LoadedComponent::component() {
    if (!component_) {
        if (!apartment_) {
            apartment_.emplace();
        }
        component_.emplace(open());
    }
    return *component_;
}

Component LoadedComponent::open() const {
    try {
        return Component::byName(programIdentifier);
    } catch (const ComponentError& failure) {
        const auto installed = installedLibrary(executable_, componentLibraryName());
        if (!failure.isNotRegistered() || !installed) {
            throw;
        }
        return Component::fromLibrary(*installed);
    }
}

}  // namespace quillmark::replay
