#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "navigator/text/byte_blocks.h"

namespace quillmark {

/// A folded word of at most 16 bytes, in UTF-8, as two numbers: its bytes, the lowest one first,
/// and zeros. Nearly all words are so short, and numbers are compared faster than texts.
struct ShortWord {
    static constexpr std::size_t longest = 2 * byte_blocks::size;

    std::uint64_t first = 0;
    std::uint64_t second = 0;

    /// One comparison, because nothing predicts whether the first halves differ.
    friend constexpr bool operator==(const ShortWord& a, const ShortWord& b) noexcept {
        return ((a.first ^ b.first) | (a.second ^ b.second)) == 0;
    }

    /// The text has at most `longest` bytes.
    [[nodiscard]] static ShortWord of(std::string_view text) noexcept {
        std::array<char, longest> bytes{};
        text.copy(bytes.data(), longest);
        return {byte_blocks::load(bytes.data()),
                byte_blocks::load(bytes.data() + byte_blocks::size)};
    }
};

/// The text of a short word.
class ShortWordText {
public:
    explicit ShortWordText(const ShortWord& word) noexcept {
        byte_blocks::store(bytes_.data(), word.first);
        byte_blocks::store(bytes_.data() + byte_blocks::size, word.second);
    }
    /// Valid as long as the object.
    [[nodiscard]] std::string_view view() const noexcept {
        const std::string_view padded(bytes_.data(), bytes_.size());
        return padded.substr(0, padded.find('\0'));
    }

private:
    std::array<char, ShortWord::longest> bytes_{};
};

}  // namespace quillmark
