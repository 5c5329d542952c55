#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace quillmark {

/// Keeps what is to go with the module in a list; see `ModuleLifetime`.
class ModuleLifetimeEntry {
public:
    ModuleLifetimeEntry() = default;
    ModuleLifetimeEntry(const ModuleLifetimeEntry&) = delete;
    ModuleLifetimeEntry& operator=(const ModuleLifetimeEntry&) = delete;

protected:
    ~ModuleLifetimeEntry() = default;

    using Destroy = void (*)(ModuleLifetimeEntry& entry) noexcept;

    void enlist(Destroy destroy) noexcept;

private:
    friend class ModuleLifetimeList;

    Destroy destroy_ = nullptr;
    ModuleLifetimeEntry* next_ = nullptr;
};

/// Holds a static object of the driver in the place of the object itself. An ordinary static made
/// during a call is destroyed before the globals of a host, and one of these may be a document that
/// writes its last page in its destructor. This one goes with the module: when the library is
/// unloaded, or after all that the process has left to its exit.
///
///     Table& table() {
///         static ModuleLifetime<Table> instance;
///         return *instance;
///     }
///
/// Those of a module go in the reverse order of their making. Use it for statics only.
template <typename T>
class ModuleLifetime : private ModuleLifetimeEntry {
public:
    ModuleLifetime() {
        new (room_.data()) T();
        enlist([](ModuleLifetimeEntry& entry) noexcept {
            (*static_cast<ModuleLifetime&>(entry)).~T();
        });
    }

    [[nodiscard]] T& operator*() noexcept {
        return *std::launder(reinterpret_cast<T*>(room_.data()));
    }

private:
    alignas(T) std::array<std::byte, sizeof(T)> room_{};
};

}  // namespace quillmark
