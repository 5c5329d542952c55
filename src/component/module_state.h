#pragma once

namespace quillmark {

/// Counts one live object of the module for as long as it exists; a member of everything that a
/// host can hold. The count is the one thing that objects of several apartments share.
class LiveObject {
public:
    LiveObject() noexcept;
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
    ~LiveObject();
};

/// Adds (or takes away) a lock that a host holds on the module.
void lockModule(bool lock) noexcept;

/// Whether no object and no lock is alive, so that the library may be unloaded.
[[nodiscard]] bool moduleIsIdle() noexcept;

}  // namespace quillmark
