#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <span>
#include <string_view>

namespace quillmark::replay {

/// A window over an input that may be larger than memory. Bytes are read on demand and released
/// once dropped. Input from a terminal or a pipe is available as soon as it arrives.
class InputBuffer {
public:
    /// `input` stays the caller's.
    explicit InputBuffer(std::istream& input);

    /// The bytes read and not yet dropped, followed by a zero. A reader may change them. They stay
    /// in place until the next `fill`.
    [[nodiscard]] std::span<char> unread() noexcept {
        return {bytes_.data() + begin_, end_ - begin_};
    }
    [[nodiscard]] std::string_view view() const noexcept {
        return {bytes_.data() + begin_, end_ - begin_};
    }
    /// Appends more bytes. False at the end of the input.
    bool fill();
    void drop(std::size_t count) noexcept { begin_ += count; }
    /// Whether the input ended because it could not be read.
    [[nodiscard]] bool failed() const { return input_.bad(); }

private:
    /// Its memory is not copied when it grows and not touched before it is used: a line may have
    /// hundreds of megabytes.
    class Bytes {
    public:
        [[nodiscard]] char* data() const noexcept { return memory_.get(); }
        [[nodiscard]] std::size_t size() const noexcept { return size_; }
        void grow(std::size_t size);

    private:
        struct Free {
            void operator()(char* memory) const noexcept;
        };
        std::unique_ptr<char, Free> memory_;
        std::size_t size_ = 0;
    };

    void makeRoom();

    std::istream& input_;
    Bytes bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

/// The kind of an input.
enum class InputFormat { nothing, callStream, recording };

/// Determines the format from the first character that is not white space: `[` begins a call
/// stream, anything else a recorded trace. Drops a byte order mark.
[[nodiscard]] InputFormat detectFormat(InputBuffer& input);

}  // namespace quillmark::replay
