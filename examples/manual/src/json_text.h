#pragma once

#include <string>
#include <string_view>

namespace quillmark::manual {

/// The text as a JSON string, quotes included. UTF-8 goes through as it is.
[[nodiscard]] std::string jsonText(std::string_view text);

}  // namespace quillmark::manual
