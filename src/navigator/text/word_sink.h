#pragma once

#include <string_view>

namespace quillmark {

/// Takes the words of a text.
class WordSink {
public:
    virtual ~WordSink() = default;
    /// A word in its folded form, in UTF-8. The view is valid during the call.
    virtual void word(std::string_view word) = 0;
};

}  // namespace quillmark
