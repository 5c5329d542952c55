#include "host/app_profile_interface.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<AppProfileInterface*> installed{nullptr};

}  // namespace

AppProfileInterface* AppProfileInterface::getInterface() noexcept {
    return installed.load(std::memory_order_acquire);
}

AppProfileInterface* AppProfileInterface::setInterface(AppProfileInterface* profile) noexcept {
    return installed.exchange(profile, std::memory_order_acq_rel);
}

}  // namespace quillmark
