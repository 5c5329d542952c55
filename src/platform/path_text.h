#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "foundation/orx_string.h"

/// Paths as texts, for the name questions of `SysFile` and `SysDirectory`. Nothing here looks at
/// the disk.
namespace quillmark::path_text {

[[nodiscard]] constexpr bool isSeparator(char c) noexcept {
    return c == '\\' || c == '/';
}

/// A letter and ":" at the front.
[[nodiscard]] bool hasDrive(std::string_view name) noexcept;
/// Drive-qualified, or beginning with a separator.
[[nodiscard]] bool isAbsolute(std::string_view name) noexcept;

/// True for a name with a zero byte inside. The system's calls would take what stands in front of
/// the zero, which is another name: nothing is there under this one, and nothing can be made.
[[nodiscard]] bool hasZero(std::string_view name) noexcept;

/// The same name with "\" wherever it had "/".
[[nodiscard]] OrxString inDriverForm(std::string_view name);

/// Where the file part begins: behind the last separator or the drive's colon.
[[nodiscard]] std::size_t fileStart(std::string_view name) noexcept;

/// The components between the separators, empty ones dropped; a leading separator is the
/// component "\".
[[nodiscard]] std::vector<std::string_view> components(std::string_view path);

/// `SysDirectory::getRelativePath` under a given rule for upper and lower case.
[[nodiscard]] OrxString relativePath(const OrxString& base, const OrxString& target,
                                     bool ignoreCase);

}  // namespace quillmark::path_text
