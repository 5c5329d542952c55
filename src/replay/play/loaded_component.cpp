#include "replay/play/loaded_component.h"

#include <filesystem>
#include <new>
#include <system_error>

#include "command_line/installed_files.h"
#include "command_line/utf8_path.h"
#include "replay/play/component_document.h"
#include "replay/services/service_registration.h"

namespace quillmark::replay {

namespace {

constexpr const char* programIdentifier = "DocHtml.DocHtml.2.1.0";

std::optional<std::string> registeredFile() {
    try {
        return Component::registeredLibrary(programIdentifier);
    } catch (const ComponentError& failure) {
        if (!failure.isNotRegistered()) {
            throw;
        }
        return std::nullopt;
    }
}

}  // namespace

bool LoadedComponent::Libraries::registeredIsGone() const {
    if (!registered) {
        return false;
    }
    // The system looks for a name without a directory in places of its own.
    const std::filesystem::path file = pathFrom(*registered);
    std::error_code ignored;
    return file.is_absolute() && !std::filesystem::exists(file, ignored);
}

bool LoadedComponent::Libraries::takesInstalled() const {
    return installed && (!registered || registeredIsGone());
}

std::string LoadedComponent::Libraries::whatIsGone() const {
    return "the registered component " + registered.value_or("") + " is gone; \"" +
           unregisterCommand() + "\" removes its registration";
}

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

LoadedComponent::Libraries LoadedComponent::libraries() const {
    return {registeredFile(), installedLibrary(executable_, componentLibraryName())};
}

Component LoadedComponent::open() const {
    const Libraries found = libraries();
    if (found.registeredIsGone()) {
        warn_(found.whatIsGone());
    }
    return found.takesInstalled() ? Component::fromLibrary(*found.installed)
                                  : Component::byName(programIdentifier);
}

std::string LoadedComponent::description() const try {
    const Libraries found = libraries();
    const std::string note = found.registeredIsGone() ? "; " + found.whatIsGone() : "";
    if (found.takesInstalled()) {
        return "component: " + *found.installed + " (installed with this program)" + note;
    }
    return found.registered ? "component: " + *found.registered + " (registered)" + note
                            : "component: none is installed or registered";
} catch (const ComponentError& failure) {
    return std::string("component: ") + failure.what();
}

}  // namespace quillmark::replay
