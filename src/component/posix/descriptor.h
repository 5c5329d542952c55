#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

namespace quillmark {

/// An open file of the system's; below 0 when it could not be opened, and `errno` says why.
class Descriptor {
public:
    Descriptor(const std::filesystem::path& file, int flags) noexcept
        : number_(open(file.c_str(), flags | O_CLOEXEC, 0666)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    [[nodiscard]] int number() const noexcept { return number_; }

private:
    int number_;
};

}  // namespace quillmark
