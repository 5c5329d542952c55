#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Text between a host's UTF-16 and the system's 8-bit code page.
///
/// The code page is the system's ANSI code page on Windows and Windows-1252 elsewhere.
class SysText {
public:
    /// Appends the 8-bit form of `text` to `out`; what the code page cannot hold becomes "?".
    static void appendNarrow(std::string& out, std::u16string_view text);
    [[nodiscard]] static OrxString narrow(std::u16string_view text);
    [[nodiscard]] static std::u16string widen(std::string_view text);
    /// The same for a UTF-8 text of a command line or a configuration file.
    [[nodiscard]] static OrxString fromUtf8(std::string_view utf8);
    [[nodiscard]] static std::string toUtf8(std::string_view text);

    /// Whether the code page can hold `text`, so that it comes back from 8 bits as it was.
    [[nodiscard]] static bool holds(std::u16string_view text);
    /// The same for a UTF-8 text. False for one that is malformed.
    [[nodiscard]] static bool holdsUtf8(std::string_view utf8);
    /// How many characters of `text` the code page cannot hold; a surrogate pair is one.
    [[nodiscard]] static std::size_t countLost(std::u16string_view text);
    /// The code page's name for a message, for example "Windows-1252".
    [[nodiscard]] static std::string codePageName();
};

}  // namespace quillmark
