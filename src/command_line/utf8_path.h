#pragma once

#include <filesystem>
#include <string>

namespace quillmark {

/// A path as UTF-8 text, and the path that such a text names.
[[nodiscard]] std::string utf8Path(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path pathFrom(const std::string& utf8);

}  // namespace quillmark
