#include "platform/argument_text.h"

namespace quillmark {

namespace {

bool needsQuotes(std::string_view argument) noexcept {
    return argument.empty() || argument.find_first_of(" \t\n\v\"") != std::string_view::npos;
}

/// Backslashes are ordinary characters, except directly before a quote.
std::string quoted(std::string_view argument) {
    std::string text = "\"";
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == '"') {
            text.append(backslashes + 1, '\\');
        }
        backslashes = c == '\\' ? backslashes + 1 : 0;
        text.push_back(c);
    }
    text.append(backslashes, '\\');
    return text + '"';
}

}  // namespace

std::string joinedArguments(const std::vector<std::string>& arguments) {
    std::string joined;
    for (const std::string& argument : arguments) {
        joined += joined.empty() ? "" : " ";
        joined += needsQuotes(argument) ? quoted(argument) : argument;
    }
    return joined;
}

}  // namespace quillmark
