#pragma once

#include <string>
#include <string_view>

/// Windows-1252, the 8-bit code page of every system that has no ANSI code page of its own.
///
/// Both conversions are total: nothing fails, and the same input gives the same bytes everywhere.
namespace quillmark::code_page {

/// Appends `text` to `out`, one byte for each UTF-16 unit. A unit that Windows-1252 cannot hold
/// becomes "?"; so does each half of a surrogate pair, and a lone surrogate.
void appendNarrowed(std::string& out, std::u16string_view text);

/// Writes the low byte of each unit of `text` to `target`, which has room for as many bytes. True
/// when that is the whole conversion: every unit was ASCII, which every code page here holds.
[[nodiscard]] bool copyAscii(char* target, std::u16string_view text) noexcept;

/// The UTF-16 text of Windows-1252 bytes, one unit a byte.
[[nodiscard]] std::u16string widened(std::string_view bytes);

}  // namespace quillmark::code_page
