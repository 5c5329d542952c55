#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "dochtml/client.h"
#include "replay/play/late_bound_document.h"
#include "replay/services/host_services.h"
#include "replay/services/provided_services.h"

namespace quillmark::replay {

/// Loads the document component when it is first needed: by program identifier or, if it is not
/// registered, or registered with a library that is gone, from the library installed with the
/// program. Every function may throw `ComponentError`.
class LoadedComponent {
public:
    using Warn = std::function<void(const std::string& warning)>;

    /// `executable` is the path of the program (UTF-8). `warn` is called, before the component is
    /// loaded, when the registered one is gone.
    LoadedComponent(std::string executable, Warn warn)
        : executable_(std::move(executable)), warn_(std::move(warn)) {}
    LoadedComponent(const LoadedComponent&) = delete;
    LoadedComponent& operator=(const LoadedComponent&) = delete;
    ~LoadedComponent() = default;

    [[nodiscard]] std::unique_ptr<LateBoundDocument> makeDocument();
    /// Provides the services to the component for as long as the result lives.
    [[nodiscard]] std::shared_ptr<ProvidedServices> provide(const HostServices& services);
    /// Says in one line which library would be loaded and why, or what is wrong. Loads nothing.
    [[nodiscard]] std::string description() const;

private:
    /// The library files that the system and the installation name.
    struct Libraries {
        std::optional<std::string> registered;
        std::optional<std::string> installed;

        [[nodiscard]] bool registeredIsGone() const;
        /// Whether the one that is installed with the program is used.
        [[nodiscard]] bool takesInstalled() const;
        /// That the registered one is gone, and what to do about it.
        [[nodiscard]] std::string whatIsGone() const;
    };

    [[nodiscard]] const Component& component();
    [[nodiscard]] Component open() const;
    [[nodiscard]] Libraries libraries() const;

    std::string executable_;
    Warn warn_;
    std::optional<Apartment> apartment_;
    std::optional<Component> component_;
};

}  // namespace quillmark::replay
