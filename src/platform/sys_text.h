#pragma once

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
    /// The name of the code page, for messages, for example "Windows-1252".
    [[nodiscard]] static std::string codePageName();
};

}  // namespace quillmark
