#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// The component library, loaded and registered for as long as the tests run.
class RegisteredComponent {
public:
    explicit RegisteredComponent(const std::string& file);
    RegisteredComponent(const RegisteredComponent&) = delete;
    RegisteredComponent& operator=(const RegisteredComponent&) = delete;
    ~RegisteredComponent();

    [[nodiscard]] bool isRegistered() const noexcept { return registered_; }
    [[nodiscard]] HMODULE module() const noexcept { return library_; }

private:
    bool call(const char* entryPoint) const;

    HMODULE library_;
    bool registered_;
};

}  // namespace quillmark
