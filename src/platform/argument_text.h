#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// Joins the arguments of a program into one text, for systems that start a program with a command
/// line. A program that splits its command line by the rules of Microsoft's C runtime gets exactly
/// these arguments, whatever quotes, blanks and backslashes they contain.
[[nodiscard]] std::string joinedArguments(const std::vector<std::string>& arguments);

}  // namespace quillmark
