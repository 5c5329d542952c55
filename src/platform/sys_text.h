#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Conversions to and from the system's 8-bit code page: the ANSI code page on Windows,
/// Windows-1252 elsewhere. They never fail.
class SysText {
public:
    /// Appends UTF-16 text to `out` in 8 bits. What the code page cannot hold becomes "?".
    static void appendNarrow(std::string& out, std::u16string_view text);
    [[nodiscard]] static OrxString narrow(std::u16string_view text);
    [[nodiscard]] static std::u16string widen(std::string_view text);
    /// Conversions from and to UTF-8, for command lines and configuration files.
    [[nodiscard]] static OrxString fromUtf8(std::string_view utf8);
    [[nodiscard]] static std::string toUtf8(std::string_view text);

    /// Whether the code page can hold `text`, so that converting it to 8 bits loses nothing.
    [[nodiscard]] static bool holds(std::u16string_view text);
    /// The same for a UTF-8 text. False if it is malformed.
    [[nodiscard]] static bool holdsUtf8(std::string_view utf8);
    /// The number of characters in `text` that the code page cannot hold. A surrogate pair counts
    /// as one character.
    [[nodiscard]] static std::size_t countLost(std::u16string_view text);
    /// The name of the code page, for messages, for example "Windows-1252".
    [[nodiscard]] static std::string codePageName();
};

}  // namespace quillmark
