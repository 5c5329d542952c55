#pragma once

#include <string>

namespace quillmark {

/// A library file that is loaded into the process. It stays loaded until `unload` is called.
class SharedLibrary {
public:
    /// Loads the file. `file` is its name in UTF-8. Throws `ComponentError`.
    explicit SharedLibrary(const std::string& file);

    /// The address of the exported function of that name; null when there is none.
    [[nodiscard]] void* find(const char* name) const noexcept;
    /// Unloads the library. Nothing of it may be used afterwards.
    void unload() noexcept;

private:
    void* handle_ = nullptr;
};

}  // namespace quillmark
