#pragma once

#include <string>
#include <string_view>

#include "platform/text_encoding.h"

namespace quillmark::replay {

/// Compares the lines of a recording with the encoding of the document that they are played into.
/// A recording holds bytes: it fits only the encoding in which it was made.
class RecordingFit {
public:
    /// Whether a call line cannot come from a document in that encoding. Answers so once.
    [[nodiscard]] bool isWrong(std::string_view line, const TextEncoding& encoding);
    /// Says what is wrong, and which setting the recording asks for.
    [[nodiscard]] static std::string problem(const TextEncoding& encoding);

private:
    bool reported_ = false;
};

}  // namespace quillmark::replay
