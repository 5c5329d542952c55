#pragma once

#include <utility>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Owns the handle of an open file. The destructor closes it.
class Handle {
public:
    Handle() noexcept = default;
    explicit Handle(HANDLE handle) noexcept : handle_(handle) {}
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { static_cast<void>(close()); }

    [[nodiscard]] HANDLE get() const noexcept { return handle_; }
    [[nodiscard]] bool isOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }

    /// False if the system reports a failure. Closing again has no effect and returns true.
    [[nodiscard]] bool close() noexcept {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle) != FALSE;
    }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace quillmark
