#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace quillmark {

/// Keeps what is to go with the module in a list; see `Lasting`.
class LastingEntry {
public:
    LastingEntry() = default;
    LastingEntry(const LastingEntry&) = delete;
    LastingEntry& operator=(const LastingEntry&) = delete;

protected:
    ~LastingEntry() = default;

    using Destroy = void (*)(LastingEntry& entry) noexcept;

    void enlist(Destroy destroy) noexcept;

private:
    friend class LastingList;

    Destroy destroy_ = nullptr;
    LastingEntry* next_ = nullptr;
};

/// Holds a static object of the driver in the place of the object itself. An ordinary static made
/// during a call is destroyed before the globals of a host, and one of these may be a document that
/// writes its last page in its destructor. This one goes with the module: when the library is
/// unloaded, or after all that the process has left to its exit.
///
///     Table& table() {
///         static Lasting<Table> instance;
///         return *instance;
///     }
///
/// Those of a module go in the reverse order of their making. Use it for statics only.
template <typename T>
class Lasting : private LastingEntry {
public:
    Lasting() {
        new (room_.data()) T();
        enlist([](LastingEntry& entry) noexcept { (*static_cast<Lasting&>(entry)).~T(); });
    }

    [[nodiscard]] T& operator*() noexcept {
        return *std::launder(reinterpret_cast<T*>(room_.data()));
    }

private:
    alignas(T) std::array<std::byte, sizeof(T)> room_{};
};

}  // namespace quillmark
