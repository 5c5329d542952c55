#include "component/module_state.h"

#include <atomic>

namespace quillmark {
namespace {

std::atomic<long> liveObjects{0};
std::atomic<long> moduleLocks{0};

}  // namespace

LiveObject::LiveObject() noexcept {
    ++liveObjects;
}

LiveObject::~LiveObject() {
    --liveObjects;
}

void lockModule(bool lock) noexcept {
    moduleLocks += lock ? 1 : -1;
}

bool moduleIsIdle() noexcept {
    return liveObjects == 0 && moduleLocks == 0;
}

}  // namespace quillmark
