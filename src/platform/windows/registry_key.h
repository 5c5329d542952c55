#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// Owns an open key of the registry. The destructor closes it.
class RegistryKey {
public:
    RegistryKey() noexcept = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (handle_ != nullptr) {
            RegCloseKey(handle_);
        }
    }

    /// Opens an existing key; `access` is a mask such as `KEY_READ`. Call `open` or `create` once.
    [[nodiscard]] LSTATUS open(HKEY parent, const std::wstring& path, REGSAM access) noexcept {
        return RegOpenKeyExW(parent, path.c_str(), 0, access, &handle_);
    }
    /// Opens a key. Creates it, and those above it, if it is missing.
    [[nodiscard]] LSTATUS create(HKEY parent, const std::wstring& path, REGSAM access) noexcept {
        return RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access,
                               nullptr, &handle_, nullptr);
    }

    [[nodiscard]] HKEY get() const noexcept { return handle_; }

private:
    HKEY handle_ = nullptr;
};

}  // namespace quillmark
