#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The arguments of a command line: split at blanks, double quotes hold what stands between them
/// together and fall away. A quote that is never closed holds up to the end.
[[nodiscard]] std::vector<std::string> splitArguments(std::string_view text);

}  // namespace quillmark
