#pragma once

#include <string>
#include <string_view>

/// Windows-1252, the 8-bit code page used on systems without an ANSI code page of their own.
///
/// The conversions never fail, and the same input gives the same bytes on every system.
namespace quillmark::code_page {

/// Appends `text` to `out`, one byte per UTF-16 unit. A unit that has no byte in Windows-1252
/// becomes "?", and so does each surrogate.
void appendNarrowed(std::string& out, std::u16string_view text);

/// Whether every unit of `text` is ASCII.
[[nodiscard]] bool isAscii(std::u16string_view text) noexcept;

/// Writes the low byte of each unit of `text` to `target`, which must have room for
/// `text.size()` bytes. Returns true if every unit was ASCII, so that no further conversion is
/// needed in any code page. Otherwise the bytes written are useless.
[[nodiscard]] bool copyAscii(char* target, std::u16string_view text) noexcept;

/// The UTF-16 text of Windows-1252 bytes, one unit per byte.
[[nodiscard]] std::u16string widened(std::string_view bytes);

}  // namespace quillmark::code_page
