#include "platform/argument_text.h"

namespace quillmark {

std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    bool inArgument = false;
    bool inQuotes = false;
    for (const char c : text) {
        if (!inQuotes && (c == ' ' || c == '\t')) {
            inArgument = false;
            continue;
        }
        if (!inArgument) {
            arguments.emplace_back();
            inArgument = true;
        }
        if (c == '"') {
            inQuotes = !inQuotes;
        } else {
            arguments.back().push_back(c);
        }
    }
    return arguments;
}

}  // namespace quillmark
