#include "call_stream.h"

#include <stdexcept>

#include "driver/boundary/operation_table.h"
#include "json_text.h"

namespace quillmark::manual {

std::string CallStream::json(std::string_view argument) {
    return jsonText(argument);
}

void CallStream::append(std::string_view operation, const std::vector<std::string>& arguments) {
    const Operation* row = findOperation(operation);
    if (row == nullptr || row->parameters.size() != arguments.size()) {
        throw std::logic_error("no such call: " + std::string(operation) + " with " +
                               std::to_string(arguments.size()) + " arguments");
    }
    text_ += '[' + jsonText(operation);
    for (const std::string& argument : arguments) {
        text_ += ',' + argument;
    }
    text_ += "]\n";
}

}  // namespace quillmark::manual
