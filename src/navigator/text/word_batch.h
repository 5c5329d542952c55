#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>

#include "navigator/text/word_sink.h"

namespace quillmark {

/// Collects words and passes them to a sink several at a time.
class WordBatch {
public:
    static constexpr std::size_t longestWord = 32;

    explicit WordBatch(WordSink& sink) noexcept : sink_(sink) {}

    /// Where the next word is written: `longestWord` bytes.
    [[nodiscard]] char* next() noexcept { return texts_[count_].data(); }
    /// The word at `next()` has this length; up to a multiple of eight, zeros follow it.
    void add(std::size_t length) {
        words_[count_] = FoldedWord(next(), length);
        if (++count_ == words_.size()) {
            flush();
        }
    }
    /// Passes the words that have been collected to the sink.
    void flush() {
        const std::size_t count = count_;
        count_ = 0;
        if (count != 0) {
            sink_.words(std::span(words_).first(count));
        }
    }
    /// Drops them.
    void clear() noexcept { count_ = 0; }

private:
    WordSink& sink_;
    std::array<std::array<char, longestWord>, WordSink::mostAtOnce> texts_{};
    std::array<FoldedWord, WordSink::mostAtOnce> words_{};
    std::size_t count_ = 0;
};

}  // namespace quillmark
