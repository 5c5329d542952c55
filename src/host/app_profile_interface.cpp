#include "host/app_profile_interface.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<AppProfileInterface*> installed;

}  // namespace

AppProfileInterface* AppProfileInterface::getInterface() noexcept {
    return installed.get();
}

AppProfileInterface* AppProfileInterface::setInterface(AppProfileInterface* profile) noexcept {
    return installed.exchange(profile);
}

}  // namespace quillmark
