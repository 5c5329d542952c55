#include "driver/text/element_handle.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<std::uint32_t> lowHalf;

}  // namespace

void ElementHandle::setLowHalf(std::uint32_t low) {
    lowHalf.exchange(low);
}

std::uint64_t ElementHandle::joinHighHalf(std::uint32_t high) {
    return (std::uint64_t{high} << 32U) | lowHalf.exchange(0);
}

}  // namespace quillmark
