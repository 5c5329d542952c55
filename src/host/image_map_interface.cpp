#include "host/image_map_interface.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<CImageMapInterface*> installedImageMaps;

}  // namespace

CImageMapInterface* CImageMapInterface::getInterface() noexcept {
    return installedImageMaps.get();
}

CImageMapInterface* CImageMapInterface::setInterface(CImageMapInterface* service) noexcept {
    return installedImageMaps.exchange(service);
}

}  // namespace quillmark
