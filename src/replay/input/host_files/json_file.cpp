#include "replay/input/host_files/json_file.h"

#include <algorithm>

#include "replay/input/bad_input.h"
#include "replay/input/host_files/host_file.h"

namespace quillmark::replay {

namespace {

[[noreturn]] void refuseText(std::string_view shown, std::string_view text, std::size_t offset,
                             std::string_view problem) {
    const auto line = 1 + std::ranges::count(text.substr(0, offset), '\n');
    throw BadInput(std::string(shown) + ":" + std::to_string(line) + ": " + std::string(problem));
}

}  // namespace

JsonDocument readJsonObject(const std::filesystem::path& file, std::string_view shown) {
    const std::string text = readHostFile(file, shown);
    JsonDocument document;
    // Without recursion, so that a deeply nested file cannot exhaust the stack.
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(
        text.data(), text.size());
    if (document.HasParseError()) {
        refuseText(shown, text, std::min(document.GetErrorOffset(), text.size()),
                   std::string("malformed JSON: ") +
                       rapidjson::GetParseError_En(document.GetParseError()));
    }
    if (!document.IsObject()) {
        refuseText(shown, text, 0, "the file must contain a JSON object");
    }
    return document;
}

std::string_view utf8Text(const JsonValue& value) {
    return {value.GetString(), value.GetStringLength()};
}

OrxString ownedText(const JsonValue& value) {
    return {utf8Text(value)};
}

}  // namespace quillmark::replay
