#pragma once

#include <string>

#include "component/client/shared_library.h"
#include "dochtml/client.h"

namespace quillmark {

/// A loaded component library. The destructor unloads it unless any of its objects is alive.
class Component::Library {
public:
    /// Throws `ComponentError`.
    explicit Library(const std::string& file) : file_(file) {}
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library();

    /// Throws `ComponentError`.
    [[nodiscard]] ComPointer<IClassFactory> classObject(const CLSID& classId) const;

private:
    SharedLibrary file_;
};

}  // namespace quillmark
