#pragma once

#include <unistd.h>

#include <utility>

namespace quillmark {

/// An open file of the system; closed when its holder goes.
class Descriptor {
public:
    Descriptor() noexcept = default;
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

    /// False when the system reports that something written was lost. A second close is true.
    [[nodiscard]] bool close() noexcept {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_ = -1;
};

}  // namespace quillmark
