#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmark {

/// A word in its folded form, in UTF-8. Its bytes are followed by zeros up to a multiple of eight,
/// so that it can be read in blocks. It is a view.
class FoldedWord {
public:
    static constexpr std::size_t blockSize = 8;

    constexpr FoldedWord() noexcept = default;
    constexpr FoldedWord(const char* padded, std::size_t length) noexcept
        : padded_(padded), length_(length) {}

    [[nodiscard]] constexpr std::string_view text() const noexcept { return {padded_, length_}; }
    [[nodiscard]] constexpr std::size_t blocks() const noexcept {
        return (length_ + blockSize - 1) / blockSize;
    }
    [[nodiscard]] constexpr const char* block(std::size_t index) const noexcept {
        return padded_ + index * blockSize;
    }

private:
    const char* padded_ = nullptr;
    std::size_t length_ = 0;
};

/// Takes the words of a text.
class WordSink {
public:
    virtual ~WordSink() = default;
    /// The word is valid during the call.
    virtual void word(const FoldedWord& word) = 0;
    /// Takes several words, at most `mostAtOnce`; a sink may be faster with them together.
    virtual void words(std::span<const FoldedWord> words) {
        for (const FoldedWord& one : words) {
            word(one);
        }
    }
    static constexpr std::size_t mostAtOnce = 16;
};

}  // namespace quillmark
