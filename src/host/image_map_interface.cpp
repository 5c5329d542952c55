#include "host/image_map_interface.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<CImageMapInterface*> installed{nullptr};

}  // namespace

CImageMapInterface* CImageMapInterface::getInterface() noexcept {
    return installed.load(std::memory_order_acquire);
}

CImageMapInterface* CImageMapInterface::setInterface(CImageMapInterface* service) noexcept {
    return installed.exchange(service, std::memory_order_acq_rel);
}

}  // namespace quillmark
