#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "foundation/orx_string.h"

/// Operations on paths as texts, on which `SysFile` and `SysDirectory` build. They do not access
/// the disk.
namespace quillmark::path_text {

[[nodiscard]] constexpr bool isSeparator(char c) noexcept {
    return c == '\\' || c == '/';
}

/// True if the name starts with a letter and ":".
[[nodiscard]] bool hasDrive(std::string_view name) noexcept;
/// True if the name starts with a drive or a separator.
[[nodiscard]] bool isAbsolute(std::string_view name) noexcept;

/// True for a name with a zero byte. System calls would cut it off at the zero and use another
/// name, so such a name never exists and cannot be created.
[[nodiscard]] bool hasZero(std::string_view name) noexcept;

/// The same name with "\" wherever it had "/".
[[nodiscard]] OrxString inDriverForm(std::string_view name);

/// The position of the file part: after the last separator or after the drive's colon.
[[nodiscard]] std::size_t fileStart(std::string_view name) noexcept;

/// The part of a path that is its parent directory, as `SysDirectory::getParentDirectory` gives it,
/// but with the separators that the path has.
[[nodiscard]] std::string_view parent(std::string_view path) noexcept;

/// The components between the separators, without empty ones. A leading separator is a component of
/// its own, "\".
[[nodiscard]] std::vector<std::string_view> components(std::string_view path);

/// `SysDirectory::getRelativePath` with or without regard to case.
[[nodiscard]] OrxString relativePath(const OrxString& base, const OrxString& target,
                                     bool ignoreCase);

}  // namespace quillmark::path_text
