#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace quillmark {

/// The part of `ModuleLifetime` that does not depend on the type of its object: an entry in the
/// list of objects to destroy.
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

/// Wraps a static object so that it lives as long as the module (library or program) it is in. It
/// is destroyed when the library is unloaded or, at process exit, after the static objects of all
/// modules.
///
/// An ordinary static that is created during a call is destroyed before the global objects of the
/// host. One of those may be a document, whose destructor writes its last page and still needs the
/// static.
///
///     Table& table() {
///         static ModuleLifetime<Table> instance;
///         return *instance;
///     }
///
/// The objects of a module are destroyed in the reverse order of their creation. Use this for
/// static objects only.
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
