#include "replay/input/json_file.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "replay/input/bad_input.h"

namespace quillmark::replay {

namespace {

std::string readBytes(const std::filesystem::path& file, std::string_view shown) {
    std::ifstream input;
    if (!std::filesystem::is_directory(file)) {
        input.open(file, std::ios::binary);
    }
    std::ostringstream bytes;
    bytes << input.rdbuf();
    if (!input.is_open() || input.bad()) {
        throw BadInput("cannot read " + std::string(shown));
    }
    return std::move(bytes).str();
}

[[noreturn]] void refuse(std::string_view shown, std::string_view text, std::size_t offset,
                         std::string_view problem) {
    const auto line = 1 + std::ranges::count(text.substr(0, offset), '\n');
    throw BadInput(std::string(shown) + ":" + std::to_string(line) + ": " + std::string(problem));
}

}  // namespace

JsonDocument readJsonObject(const std::filesystem::path& file, std::string_view shown) {
    const std::string text = readBytes(file, shown);
    JsonDocument document;
    // Without recursion, so that a deeply nested file cannot exhaust the stack.
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(
        text.data(), text.size());
    if (document.HasParseError()) {
        refuse(shown, text, std::min(document.GetErrorOffset(), text.size()),
               std::string("malformed JSON: ") +
                   rapidjson::GetParseError_En(document.GetParseError()));
    }
    if (!document.IsObject()) {
        refuse(shown, text, 0, "the file must contain a JSON object");
    }
    return document;
}

std::string_view utf8Text(const JsonValue& value) {
    return {value.GetString(), value.GetStringLength()};
}

OrxString ownedText(const JsonValue& value) {
    return OrxString(utf8Text(value));
}

}  // namespace quillmark::replay
