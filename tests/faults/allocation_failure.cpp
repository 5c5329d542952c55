#include "faults/allocation_failure.h"

#include <cstdlib>
#include <new>

namespace quillmark::testing {

namespace {

struct State {
    bool armed = false;
    bool forGood = false;
    bool happened = false;
    int uncounted = 0;
    std::size_t position = 0;
    std::size_t count = 0;
};

constinit thread_local State state;

bool failsNow() noexcept {
    if (!state.armed || state.uncounted != 0) {
        return false;
    }
    ++state.count;
    const bool fails =
        state.forGood ? state.count >= state.position : state.count == state.position;
    state.happened = state.happened || fails;
    return fails;
}

void* allocate(std::size_t size) {
    void* const memory = failsNow() ? nullptr : std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* allocateAligned(std::size_t size, std::size_t alignment) {
    const std::size_t whole = (size + alignment - 1) / alignment * alignment;
    void* const memory = failsNow() ? nullptr : std::aligned_alloc(alignment, whole);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

}  // namespace

AllocationFailure::AllocationFailure(std::size_t position, Mode mode) noexcept {
    state = {true, mode == Mode::forGood, false, 0, position, 0};
}

AllocationFailure::~AllocationFailure() {
    state.armed = false;
}

std::size_t AllocationFailure::count() noexcept {
    return state.count;
}

bool AllocationFailure::hasHappened() noexcept {
    return state.happened;
}

UncountedAllocations::UncountedAllocations() noexcept {
    ++state.uncounted;
}

UncountedAllocations::~UncountedAllocations() {
    --state.uncounted;
}

}  // namespace quillmark::testing

// All forms: under a sanitizer those that are not replaced do not call the others.
void* operator new(std::size_t size) {
    return quillmark::testing::allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    try {
        return quillmark::testing::allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return quillmark::testing::allocateAligned(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept {
    std::free(memory);
}
