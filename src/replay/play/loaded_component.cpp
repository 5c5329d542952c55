#include "replay/play/loaded_component.h"

#include <filesystem>

#include "replay/play/component_document.h"
#include "replay/services/component_services.h"
#include "replay/tool/option_files.h"

namespace quillmark::replay {

namespace {

constexpr const char* programIdentifier = "DocHtml.DocHtml.2.1.0";

}  // namespace

std::unique_ptr<LateBoundDocument> LoadedComponent::makeDocument() {
    auto dispatch = component().createDocument().query<IDispatch>(IID_IDispatch);
    return std::make_unique<ComponentDocument>(std::move(dispatch));
}

std::shared_ptr<void> LoadedComponent::lend(const HostServices& services) {
    return std::make_shared<ComponentServices>(component().hostServices(), services);
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
        const auto nearby = nearbyLibrary();
        if (!failure.isNotRegistered() || !nearby) {
            throw;
        }
        return Component::fromLibrary(*nearby);
    }
}

std::optional<std::string> LoadedComponent::nearbyLibrary() const {
    const std::filesystem::path here = pathFrom(executable_).parent_path();
    for (const char* directory : {".", "../lib", "../" DOCHTML_LIBDIR}) {
        const std::filesystem::path file =
            (here / directory / componentLibraryName()).lexically_normal();
        if (std::filesystem::is_regular_file(file)) {
            return utf8Path(file);
        }
    }
    return std::nullopt;
}

}  // namespace quillmark::replay
