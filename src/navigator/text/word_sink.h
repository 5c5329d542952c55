#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "navigator/text/short_word.h"

namespace quillmark {

/// Takes the words of a text, in their folded form and in UTF-8.
class WordSink {
public:
    virtual ~WordSink() = default;
    /// The word is valid during the call.
    virtual void word(std::string_view word) = 0;
    /// Takes several words, at most `mostAtOnce`; a sink may be faster with them together.
    virtual void shortWords(std::span<const ShortWord> words) {
        for (const ShortWord& one : words) {
            word(ShortWordText(one).view());
        }
    }
    static constexpr std::size_t mostAtOnce = 64;
};

}  // namespace quillmark
