#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// Splits a command line into arguments at blanks and tabs. Double quotes keep blanks inside an
/// argument and are removed. A quote that is never closed extends to the end. There are no escapes.
///
///     splitArguments("-o \"my file\"");   // {"-o", "my file"}
[[nodiscard]] std::vector<std::string> splitArguments(std::string_view text);

}  // namespace quillmark
