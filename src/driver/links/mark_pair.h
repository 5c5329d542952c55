#pragma once

#include <cstdint>

namespace quillmark {

/// The two halves of a model element's handle, which a host hands over in two calls. The pair is
/// process-wide, not the document's; reaching it from several threads is free of data races.
class MarkPair {
public:
    /// Takes the low half.
    static void setLow(std::uint32_t low);
    /// Takes the high half, returns the whole handle and forgets both.
    [[nodiscard]] static std::uint64_t join(std::uint32_t high);
};

}  // namespace quillmark
