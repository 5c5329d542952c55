#include "driver/text/element_handle.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<std::uint32_t>& lowHalf() noexcept {
    static std::atomic<std::uint32_t> low{0};
    return low;
}

}  // namespace

void ElementHandle::setLowHalf(std::uint32_t low) {
    lowHalf().store(low);
}

std::uint64_t ElementHandle::joinHighHalf(std::uint32_t high) {
    return (std::uint64_t{high} << 32U) | lowHalf().exchange(0);
}

}  // namespace quillmark
