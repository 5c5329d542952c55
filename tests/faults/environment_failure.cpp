// Steers the failing allocator of a program from outside: DOCHTML_FAIL_ALLOCATION is the number of
// the first allocation of `main` that fails, with a "+" if all after it fail too.

#include <cstdlib>
#include <optional>

#include "faults/allocation_failure.h"

namespace quillmark::testing {

namespace {

struct FailureOfEnvironment {
    FailureOfEnvironment() {
        if (const char* const wanted = std::getenv("DOCHTML_FAIL_ALLOCATION")) {
            char* end = nullptr;
            const std::size_t position = std::strtoul(wanted, &end, 10);
            failure.emplace(position, *end == '+' ? AllocationFailure::Mode::forGood
                                                  : AllocationFailure::Mode::once);
        }
    }
    std::optional<AllocationFailure> failure;
};

const FailureOfEnvironment failureOfEnvironment;

}  // namespace

}  // namespace quillmark::testing
