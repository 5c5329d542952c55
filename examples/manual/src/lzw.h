#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillmark::manual {

/// Packs colour indices the way GIF wants it: codes grow from `codeBits` + 1 to 12 bits, the low
/// bits of a code come first. Every index is below 2 to the power of `codeBits` (2 to 8).
[[nodiscard]] std::string packLzw(const std::vector<std::uint8_t>& indices, int codeBits);

}  // namespace quillmark::manual
