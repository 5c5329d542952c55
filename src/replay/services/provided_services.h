#pragma once

namespace quillmark::replay {

/// The services that documents use for as long as this lives.
class ProvidedServices {
public:
    ProvidedServices() = default;
    ProvidedServices(const ProvidedServices&) = delete;
    ProvidedServices& operator=(const ProvidedServices&) = delete;
    virtual ~ProvidedServices() = default;
    /// Asks the trace listener for its level again.
    virtual void traceLevelChanged() = 0;
};

}  // namespace quillmark::replay
