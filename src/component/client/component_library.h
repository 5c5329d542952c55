#pragma once

#include <string>

#include "dochtml/client.h"

namespace quillmark {

/// A component's library file, loaded. It is unloaded at the end when nothing of it is alive.
class Component::Library {
public:
    /// Throws `ComponentError`.
    explicit Library(const std::string& file);
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library();

    /// Throws `ComponentError`.
    [[nodiscard]] ComPointer<IClassFactory> classObject(const CLSID& classId) const;

private:
    [[nodiscard]] void* find(const char* name) const noexcept;

    void* handle_ = nullptr;
};

}  // namespace quillmark
