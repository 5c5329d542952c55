#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quillmark::fuzzing {

/// Takes the fuzzer's bytes from the front, piece by piece. Behind the end everything is 0.
class ByteSource {
public:
    ByteSource(const std::uint8_t* bytes, std::size_t size)
        : bytes_(reinterpret_cast<const char*>(bytes), size) {}

    [[nodiscard]] bool atEnd() const { return bytes_.empty(); }
    std::uint8_t byte() { return value<std::uint8_t>(); }

    /// A number in the order of bytes of this machine.
    template <typename Number>
    Number value() {
        Number number{};
        const std::string_view bytes = take(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }

    /// Up to `size` bytes.
    std::string_view take(std::size_t size) {
        const std::string_view front = bytes_.substr(0, size);
        bytes_.remove_prefix(front.size());
        return front;
    }
    /// As many bytes as the next byte says.
    std::string_view piece() { return take(byte()); }
    std::string_view rest() { return take(bytes_.size()); }
    /// The bytes up to the next line end, which is passed over.
    std::string_view line() {
        const std::string_view front = take(std::min(bytes_.find('\n'), bytes_.size()));
        take(1);
        return front;
    }

private:
    std::string_view bytes_;
};

/// Bytes as UTF-16 units, whatever they are. An odd byte at the end is left out.
[[nodiscard]] inline std::u16string unitsOf(std::string_view bytes) {
    std::u16string units(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(char16_t));
    return units;
}

}  // namespace quillmark::fuzzing
