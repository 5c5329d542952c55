#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// JSON as it stands in a file of data: in ASCII, within a JavaScript string in single quotes.
namespace quillmark::json_text {

/// Appends the characters of a JSON string, without its quotes.
void appendCharacters(std::string& out, std::u16string_view text);
/// Appends a JSON string in its quotes.
void appendString(std::string& out, std::u16string_view text);
void appendNumber(std::string& out, std::uint32_t number);

}  // namespace quillmark::json_text
