#pragma once

#include <cstdint>

namespace quillmark {

/// Joins the two halves of a model element's handle, which a host passes in two calls of
/// `insertMark`. The halves belong to the process, not to a document; threads may call at the same
/// time without a data race.
class ElementHandle {
public:
    /// Keeps the low half for the next `joinHighHalf`.
    static void setLowHalf(std::uint32_t low);
    /// Returns the whole handle and resets the low half to 0.
    [[nodiscard]] static std::uint64_t joinHighHalf(std::uint32_t high);
};

}  // namespace quillmark
