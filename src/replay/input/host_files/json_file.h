#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"
#include "replay/input/rapidjson_reader.h"

namespace quillmark::replay {

/// Reads a file that contains one JSON object. `shown` is its name in messages. Throws `BadInput`
/// when it cannot be read or is malformed.
[[nodiscard]] JsonDocument readJsonObject(const std::filesystem::path& file,
                                          std::string_view shown);

/// A JSON string, in UTF-8.
[[nodiscard]] OrxString ownedText(const JsonValue& value);
[[nodiscard]] std::string_view utf8Text(const JsonValue& value);

}  // namespace quillmark::replay
