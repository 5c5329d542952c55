#pragma once

#include <cstdio>
#include <cstdlib>

namespace quillmark::fuzzing {

/// Ends the run as a finding when a property does not hold.
inline void require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "PROPERTY BROKEN: %s\n", property);
        std::abort();
    }
}

}  // namespace quillmark::fuzzing
