#pragma once

#include <cerrno>

#include "platform/files/file_failure.h"

namespace quillmark {

/// Passes the result of a system call on, and notes the reason of a failure.
inline bool noted(bool done) noexcept {
    if (!done) {
        FileFailure::note(errno);
    }
    return done;
}

}  // namespace quillmark
