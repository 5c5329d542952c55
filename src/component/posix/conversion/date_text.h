#pragma once

#include <optional>
#include <string>

namespace quillmark {

/// A date of automation as a person of the United States writes it, to the second:
/// "1/1/2000 6:00:00 PM", the day alone at midnight, the time alone on day 0. `date` counts days
/// from 30 December 1899; behind its point stands the time of that day, also before day 0. Nothing
/// outside the years 100 to 9999.
[[nodiscard]] std::optional<std::string> shownDate(double date);

}  // namespace quillmark
