#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "navigator/text/word_sink.h"

namespace quillmark::testing {

/// Keeps the words of a text, in their order.
class CollectedWords final : public WordSink {
public:
    void word(std::string_view word) override { words.emplace_back(word); }

    std::vector<std::string> words;
};

}  // namespace quillmark::testing
