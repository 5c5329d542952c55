#include "navigator/text/ascii_words.h"

namespace quillmark::ascii_words {

void fold(std::string_view text, char* to) noexcept {
    constexpr unsigned smallBit = 0x20;
    // Compilers turn this loop into one over many bytes at a time.
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const auto small = static_cast<unsigned char>(byte | smallBit);
        const bool isLetter = static_cast<unsigned char>(small - 'a') < 26;
        const bool isDigit = static_cast<unsigned char>(byte - '0') < 10;
        const unsigned char digit = isDigit ? byte : 0;
        to[at] = static_cast<char>(isLetter ? small : digit);
    }
}

}  // namespace quillmark::ascii_words
