#pragma once

#include <string>
#include <vector>

#include "navigator/text/word_sink.h"

namespace quillmark::testing {

/// Keeps the words of a text, in their order.
class CollectedWords final : public WordSink {
public:
    void word(const FoldedWord& word) override { words.emplace_back(word.text()); }

    std::vector<std::string> words;
};

}  // namespace quillmark::testing
