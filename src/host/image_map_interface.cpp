#include "host/image_map_interface.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<CImageMapInterface*> installed;

}  // namespace

CImageMapInterface* CImageMapInterface::getInterface() noexcept {
    return installed.get();
}

CImageMapInterface* CImageMapInterface::setInterface(CImageMapInterface* service) noexcept {
    return installed.exchange(service);
}

}  // namespace quillmark
