#pragma once

#include <optional>
#include <string>

namespace quillmark {

/// Files that are installed together with a program. `executable` is the path of the program. All
/// names are the system's own, in UTF-8.

/// The directory with the support files (style sheet, pictures, archives), next to the directory
/// of the program. It is found in a build tree as well. Nothing when there is none.
[[nodiscard]] std::optional<std::string> installedSupportFiles(const std::string& executable);

/// The shared library of that name, which programs load: in the directory of the program or in
/// the directory of plug-ins ("../lib/dochtml"). Nothing when there is none.
[[nodiscard]] std::optional<std::string> installedLibrary(const std::string& executable,
                                                          const std::string& name);

}  // namespace quillmark
