#pragma once

#include "dochtml/com_pointer.h"
#include "dochtml/host_services.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// Registers host services with a component for as long as it lives.
class ServiceRegistration {
public:
    ServiceRegistration(ComPointer<IHostServices> component, HostServices services);
    ServiceRegistration(const ServiceRegistration&) = delete;
    ServiceRegistration& operator=(const ServiceRegistration&) = delete;
    ~ServiceRegistration();

private:
    void provide();
    void confine();
    void takeBack() noexcept;

    ComPointer<IHostServices> component_;
    HostServices services_;
    bool confined_ = false;
};

}  // namespace quillmark::replay
