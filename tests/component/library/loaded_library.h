#pragma once

#include <gtest/gtest.h>

#include <string>

#ifdef _WIN32
#include "platform/windows/windows_api.h"
#else
#include <dlfcn.h>
#endif

namespace quillmark::testing {

/// A library loaded with the functions of the system, as a host without the client library does.
class LoadedLibrary {
public:
#ifdef _WIN32
    explicit LoadedLibrary(const std::string& file) : handle_(LoadLibraryA(file.c_str())) {}
    ~LoadedLibrary() {
        FreeLibrary(handle_);
    }
    template <typename Function>
    [[nodiscard]] Function find(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }
#else
    explicit LoadedLibrary(const std::string& file)
        : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {}
    ~LoadedLibrary() {
        dlclose(handle_);
    }
    template <typename Function>
    [[nodiscard]] Function find(const char* name) const {
        return reinterpret_cast<Function>(dlsym(handle_, name));
    }
#endif
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

private:
#ifdef _WIN32
    HMODULE handle_;
#else
    void* handle_;
#endif
};

}  // namespace quillmark::testing
