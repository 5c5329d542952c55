#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmark::replay {

/// Throws `BadInput`: the file cannot be read, for the reason that `errno` gives.
[[noreturn]] void refuseFile(std::string_view shown);

/// Throws `BadInput` unless the file is a regular one. `shown` is its name in messages.
void checkRegularFile(const std::filesystem::path& file, std::string_view shown);

/// All bytes of a regular file. Throws `BadInput` if it cannot be read to its end.
[[nodiscard]] std::string readHostFile(const std::filesystem::path& file, std::string_view shown);

}  // namespace quillmark::replay
