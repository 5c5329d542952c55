// The replay tool with an allocator that is steered from outside: DOCHTML_FAIL_ALLOCATION is the
// number of the first allocation that fails, with a "+" if all after it fail too.

#include <cstdlib>
#include <optional>

#include "faults/allocation_failure.h"

/// The tool's `main`, under another name.
int replayMain(int argc, char** argv);

int main(int argc, char** argv) {
    using quillmark::testing::AllocationFailure;
    std::optional<AllocationFailure> failure;
    if (const char* const wanted = std::getenv("DOCHTML_FAIL_ALLOCATION")) {
        char* end = nullptr;
        const std::size_t position = std::strtoul(wanted, &end, 10);
        failure.emplace(position, *end == '+' ? AllocationFailure::Mode::forGood
                                              : AllocationFailure::Mode::once);
    }
    return replayMain(argc, argv);
}
