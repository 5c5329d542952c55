#pragma once

#include <memory>
#include <optional>
#include <string>

#include "dochtml/client.h"
#include "replay/play/late_bound_document.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// The document component, loaded when it is first wanted: by program identifier, or, where it is
/// not registered, from the file that lies beside the program or in the library directory next to
/// the program's. Every function may throw `ComponentError`.
class LoadedComponent {
public:
    /// `executable` is where the program lies (UTF-8).
    explicit LoadedComponent(std::string executable) : executable_(std::move(executable)) {}
    LoadedComponent(const LoadedComponent&) = delete;
    LoadedComponent& operator=(const LoadedComponent&) = delete;
    ~LoadedComponent() = default;

    [[nodiscard]] std::unique_ptr<LateBoundDocument> makeDocument();
    /// Lends the services for the life of what it returns.
    [[nodiscard]] std::shared_ptr<void> lend(const HostServices& services);

private:
    [[nodiscard]] const Component& component();
    [[nodiscard]] Component open() const;
    /// The file near the program, or nothing.
    [[nodiscard]] std::optional<std::string> nearbyLibrary() const;

    std::string executable_;
    std::optional<Apartment> apartment_;
    std::optional<Component> component_;
};

}  // namespace quillmark::replay
