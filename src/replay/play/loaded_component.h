#pragma once

#include <memory>
#include <optional>
#include <string>

#include "dochtml/client.h"
#include "replay/play/late_bound_document.h"
#include "replay/services/host_services.h"
#include "replay/services/provided_services.h"

namespace quillmark::replay {

/// Loads the document component when it is first needed: by program identifier or, if it is not
/// registered, from the library installed with the program. Every function may throw
/// `ComponentError`.
class LoadedComponent {
public:
    /// `executable` is the path of the program (UTF-8).
    explicit LoadedComponent(std::string executable) : executable_(std::move(executable)) {}
    LoadedComponent(const LoadedComponent&) = delete;
    LoadedComponent& operator=(const LoadedComponent&) = delete;
    ~LoadedComponent() = default;

    [[nodiscard]] std::unique_ptr<LateBoundDocument> makeDocument();
    /// Provides the services to the component for as long as the result lives.
    [[nodiscard]] std::shared_ptr<ProvidedServices> provide(const HostServices& services);

private:
    [[nodiscard]] const Component& component();
    [[nodiscard]] Component open() const;

    std::string executable_;
    std::optional<Apartment> apartment_;
    std::optional<Component> component_;
};

}  // namespace quillmark::replay
