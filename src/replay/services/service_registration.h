#pragma once

#include "dochtml/com_pointer.h"
#include "dochtml/host_services.h"
#include "replay/services/host_services.h"
#include "replay/services/provided_services.h"

namespace quillmark::replay {

/// Registers host services with a component for as long as it lives.
class ServiceRegistration final : public ProvidedServices {
public:
    ServiceRegistration(ComPointer<IHostServices> component, HostServices services);
    ServiceRegistration(const ServiceRegistration&) = delete;
    ServiceRegistration& operator=(const ServiceRegistration&) = delete;
    ~ServiceRegistration() override;
    void traceLevelChanged() override;

private:
    void provide();
    void confine();
    void takeBack() noexcept;

    ComPointer<IHostServices> component_;
    HostServices services_;
    bool confined_ = false;
};

}  // namespace quillmark::replay
