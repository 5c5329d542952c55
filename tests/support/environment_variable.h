#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace quillmark {

/// Sets an environment variable, or removes it if the value is empty. The destructor restores it.
class EnvironmentVariable {
public:
    EnvironmentVariable(std::string name, const std::optional<std::string>& value)
        : name_(std::move(name)) {
        if (const char* const before = std::getenv(name_.c_str())) {
            before_ = before;
        }
        put(value);
    }
    ~EnvironmentVariable() { put(before_); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void put(const std::optional<std::string>& value) const {
#ifdef _WIN32
        _putenv_s(name_.c_str(), value.value_or("").c_str());
#else
        if (value) {
            setenv(name_.c_str(), value->c_str(), 1);
        } else {
            unsetenv(name_.c_str());
        }
#endif
    }

    std::string name_;
    std::optional<std::string> before_;
};

}  // namespace quillmark
