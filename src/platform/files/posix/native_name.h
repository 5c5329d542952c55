#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/files/drive_table.h"
#include "platform/files/path_text.h"

namespace quillmark {

/// The result of `nativePath` for one system call. Most names are short and ASCII, and they need no
/// allocation.
class NativeName {
public:
    explicit NativeName(const OrxString& name) {
        if (!takePlain(name)) {
            other_ = nativePath(name);
            text_ = other_.c_str();
        }
    }
    NativeName(const NativeName&) = delete;
    NativeName& operator=(const NativeName&) = delete;
    ~NativeName() = default;

    [[nodiscard]] const char* text() const noexcept { return text_; }

private:
    /// False for a name that is not so simple.
    bool takePlain(std::string_view name) noexcept {
        if (name.size() >= plain_.size() || path_text::hasDrive(name)) {
            return false;
        }
        // Without an early end the compiler can vectorize the loop.
        const char* const bytes = name.data();
        const std::size_t size = name.size();
        unsigned char odd = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            // Zero and what is beyond ASCII set the highest bit.
            odd = static_cast<unsigned char>(odd | byte | (byte - 1));
            plain_[i] = byte == '\\' ? '/' : bytes[i];
        }
        plain_[size] = '\0';
        text_ = plain_.data();
        return odd < 0x80;
    }

    std::array<char, 256> plain_{};
    std::string other_;
    const char* text_ = nullptr;
};

}  // namespace quillmark
