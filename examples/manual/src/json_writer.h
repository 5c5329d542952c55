#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string>
#include <string_view>

namespace quillmark::manual {

/// Writes a text, as a value or as the name of a member.
template <typename Writer>
void writeText(Writer& writer, std::string_view text) {
    writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

/// The JSON text that `write` makes with the writer passed to it, indented for people.
template <typename Write>
std::string indentedJson(Write write) {
    rapidjson::StringBuffer buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
    writer.SetIndent(' ', 2);
    write(writer);
    return std::string(buffer.GetString(), buffer.GetSize()) + '\n';
}

}  // namespace quillmark::manual
