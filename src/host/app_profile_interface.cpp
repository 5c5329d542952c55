#include "host/app_profile_interface.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<AppProfileInterface*> installedProfile;

}  // namespace

AppProfileInterface* AppProfileInterface::getInterface() noexcept {
    return installedProfile.get();
}

AppProfileInterface* AppProfileInterface::setInterface(AppProfileInterface* profile) noexcept {
    return installedProfile.exchange(profile);
}

}  // namespace quillmark
