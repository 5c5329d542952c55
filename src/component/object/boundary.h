#pragma once

#include <utility>

#include "dochtml/automation.h"

namespace quillmark {

/// Tells the exception log of the exception being handled. Call it in a catch block.
void logCaughtException() noexcept;
/// The platform's result for the exception being handled; also logs it.
[[nodiscard]] HRESULT resultOfCaughtException() noexcept;

/// The way into the driver: runs an operation of a document and answers 0, whatever happens in it.
/// An exception is logged and goes no further.
template <typename Body>
HRESULT runOperation(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        logCaughtException();
    }
    return S_OK;
}

/// The way into everything else: runs `body`, which answers with a result, and turns an exception
/// into a failing one.
template <typename Body>
HRESULT runGuarded(Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return resultOfCaughtException();
    }
}

}  // namespace quillmark
