#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Inputs that a person can read and the fuzzer can change line by line: fields with a tab between
/// them. Every text is a line, so no change makes an input malformed.
namespace quillmark::fuzzing {

/// The fields of a line. In a field "\n", "\r", "\t" and "\\" are the characters, "\u00e9" is a
/// UTF-16 unit and "\x81" a byte; every other backslash is itself.
[[nodiscard]] std::vector<std::string> fieldsOf(std::string_view line);

/// A field as UTF-16. Unlike the bytes of the field it may hold lone surrogates.
[[nodiscard]] std::u16string wideField(std::string_view field);

}  // namespace quillmark::fuzzing
