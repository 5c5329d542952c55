#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Replacing the content of a file that belongs to a user, who may have made it a link or given it
/// permissions of its own. Paths are the system's own.
namespace quillmark::file_rewriting {

/// The name of the file that a link leads to, through all links in between. The file may be
/// missing. A name that is not a link stays as it is. Nothing if the links lead in a circle.
[[nodiscard]] std::optional<std::string> withoutLinks(const std::string& path);

/// See `FileSystem::rewriteFile`.
[[nodiscard]] bool rewrite(const std::string& path, std::string_view content);

}  // namespace quillmark::file_rewriting
