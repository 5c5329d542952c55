#pragma once

#include "host/app_profile_interface.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// Registers a host's services with the driver of this process and takes them back at the end of
/// its life, so that what was registered before is in force again. Drives are the matter of
/// `DrivesInForce`.
class RegisteredServices {
public:
    explicit RegisteredServices(HostServices services);
    RegisteredServices(const RegisteredServices&) = delete;
    RegisteredServices& operator=(const RegisteredServices&) = delete;
    ~RegisteredServices();

private:
    class Profile final : public AppProfileInterface {
    public:
        explicit Profile(OrxString path) : path_(std::move(path)) {}
        [[nodiscard]] OrxString profilePath() const override { return path_; }

    private:
        OrxString path_;
    };

    HostServices services_;
    std::optional<Profile> profile_;
    AppProfileInterface* earlierProfile_ = nullptr;
    CImageMapInterface* earlierImageMaps_ = nullptr;
    const MMSchema* earlierModel_ = nullptr;
    int earlierSchemaType_ = 0;
    TraceListener* earlierListener_ = nullptr;
    OrxExceptionLog* earlierLog_ = nullptr;
    DocumentObserver* earlierObserver_ = nullptr;
};

}  // namespace quillmark::replay
