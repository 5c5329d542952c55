#include "component/module/module_state.h"

#include <atomic>

namespace quillmark {
namespace {

std::atomic<long> liveObjects{0};
std::atomic<long> moduleLocks{0};
std::atomic<long> serviceUsers{0};

}  // namespace

LiveObject::LiveObject() noexcept {
    ++liveObjects;
}

LiveObject::~LiveObject() {
    --liveObjects;
}

ServiceUser::ServiceUser() noexcept {
    ++serviceUsers;
}

ServiceUser::~ServiceUser() {
    --serviceUsers;
}

bool servicesHaveUsers() noexcept {
    // A read-modify-write, not a load: every later increment of the count is ordered after it.
    return serviceUsers.fetch_add(0) != 0;
}

void lockModule(bool lock) noexcept {
    moduleLocks += lock ? 1 : -1;
}

bool moduleIsIdle() noexcept {
    return liveObjects == 0 && moduleLocks == 0;
}

}  // namespace quillmark
