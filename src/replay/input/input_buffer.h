#pragma once

#include <cstddef>
#include <istream>
#include <span>
#include <string_view>
#include <vector>

namespace quillmark::replay {

/// A window over an input that may be larger than memory: bytes are read as they are asked for
/// and forgotten once dropped. What is typed or piped in arrives as it comes.
class InputBuffer {
public:
    /// `input` stays the caller's.
    explicit InputBuffer(std::istream& input);

    /// The bytes read and not yet dropped. A zero stands behind the last one; a reader may change
    /// the bytes. They stay in place until the next `fill`.
    [[nodiscard]] std::span<char> unread() noexcept {
        return {bytes_.data() + begin_, end_ - begin_};
    }
    [[nodiscard]] std::string_view view() const noexcept {
        return {bytes_.data() + begin_, end_ - begin_};
    }
    /// Reads more behind what is there; false at the end of the input.
    bool fill();
    void drop(std::size_t count) noexcept { begin_ += count; }
    /// Whether the input ended because it could not be read.
    [[nodiscard]] bool failed() const { return input_.bad(); }

private:
    void makeRoom();

    std::istream& input_;
    std::vector<char> bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

/// What an input holds.
enum class InputFormat { nothing, callStream, recording };

/// Tells the format from the first character that is not white space, behind a byte order mark
/// that is dropped: `[` begins a call stream, anything else a recorded trace.
[[nodiscard]] InputFormat detectFormat(InputBuffer& input);

}  // namespace quillmark::replay
