#include "call_stream.h"

#include <stdexcept>

#include "driver/boundary/operation_table.h"
#include "json_writer.h"

namespace quillmark::manual {

namespace {

using LineWriter = rapidjson::Writer<rapidjson::StringBuffer>;

void write(LineWriter& writer, std::string_view text) {
    writeText(writer, text);
}

void write(LineWriter& writer, bool value) {
    writer.Bool(value);
}

void write(LineWriter& writer, int value) {
    writer.Int(value);
}

void write(LineWriter& writer, unsigned value) {
    writer.Uint(value);
}

}  // namespace

void CallStream::append(std::string_view operation, const std::vector<Argument>& arguments) {
    const Operation* row = findOperation(operation);
    if (row == nullptr || row->parameters.size() != arguments.size()) {
        throw std::logic_error("no such call: " + std::string(operation) + " with " +
                               std::to_string(arguments.size()) + " arguments");
    }
    rapidjson::StringBuffer buffer;
    LineWriter writer(buffer);
    writer.StartArray();
    write(writer, operation);
    for (const Argument& argument : arguments) {
        std::visit([&](const auto& value) { write(writer, value); }, argument);
    }
    writer.EndArray();
    text_.append(buffer.GetString(), buffer.GetSize()).append("\n");
}

}  // namespace quillmark::manual
