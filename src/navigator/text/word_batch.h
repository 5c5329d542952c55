#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "navigator/text/word_sink.h"

namespace quillmark {

/// Collects short words and passes them to a sink several at a time.
class WordBatch {
public:
    explicit WordBatch(WordSink& sink) noexcept : sink_(sink) {}

    /// Adds a word, unless it is empty.
    void add(ShortWord word) {
        words_[count_].first = word.first;
        words_[count_].second = word.second;
        count_ += word.first != 0 ? 1 : 0;
        if (count_ == words_.size()) {
            flush();
        }
    }
    /// Passes the words that have been collected to the sink.
    void flush() {
        const std::size_t count = count_;
        count_ = 0;
        if (count != 0) {
            sink_.shortWords(std::span(words_).first(count));
        }
    }
    /// Drops them.
    void clear() noexcept { count_ = 0; }

private:
    WordSink& sink_;
    std::array<ShortWord, WordSink::mostAtOnce> words_{};
    std::size_t count_ = 0;
};

}  // namespace quillmark
