#pragma once

#include "dochtml/com_pointer.h"
#include "dochtml/host_services.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// Lends a host's services to a component for its life.
class ComponentServices {
public:
    ComponentServices(ComPointer<IHostServices> component, HostServices services);
    ComponentServices(const ComponentServices&) = delete;
    ComponentServices& operator=(const ComponentServices&) = delete;
    ~ComponentServices();

private:
    void lend();

    ComPointer<IHostServices> component_;
    HostServices services_;
};

}  // namespace quillmark::replay
