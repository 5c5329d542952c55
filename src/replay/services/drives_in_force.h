#pragma once

#include <vector>

#include "replay/services/host_services.h"

namespace quillmark::replay {

/// Puts drives into this process's drive table for its life. Who opens a file by the driver's
/// name, a settings store for one, finds it on its drive meanwhile.
class DrivesInForce {
public:
    explicit DrivesInForce(std::vector<HostServices::Drive> drives);
    DrivesInForce(const DrivesInForce&) = delete;
    DrivesInForce& operator=(const DrivesInForce&) = delete;
    /// The letters have no directory afterwards.
    ~DrivesInForce();

private:
    std::vector<HostServices::Drive> drives_;
};

}  // namespace quillmark::replay
