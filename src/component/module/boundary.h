#pragma once

#include <utility>

#include "dochtml/automation.h"

namespace quillmark {

/// Writes the current exception to the exception log. Call it in a catch block.
void logCaughtException() noexcept;
/// Logs the current exception and returns the result code for it. Call it in a catch block.
[[nodiscard]] HRESULT resultOfCaughtException() noexcept;

/// Runs an operation of a document and returns `S_OK`, whatever happens. Logs an exception and does
/// not pass it on.
template <typename Body>
HRESULT runOperation(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        logCaughtException();
    }
    return S_OK;
}

/// Runs anything else that a host calls: returns the result of `body`, or a failure when `body`
/// throws.
template <typename Body>
HRESULT runGuarded(Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return resultOfCaughtException();
    }
}

}  // namespace quillmark
