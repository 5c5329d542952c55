#pragma once

#include <unistd.h>

#include <utility>

namespace quillmark {

/// Owns a file descriptor. The destructor closes it.
class Descriptor {
public:
    Descriptor() noexcept = default;
    /// Takes ownership of a descriptor. A negative number means that none is open.
    explicit Descriptor(int number) noexcept : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { static_cast<void>(close()); }

    [[nodiscard]] int number() const noexcept { return number_; }
    [[nodiscard]] bool isOpen() const noexcept { return number_ >= 0; }

    /// False if the system reports that written bytes were lost. Closing again has no effect and
    /// returns true.
    [[nodiscard]] bool close() noexcept {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_ = -1;
};

}  // namespace quillmark
