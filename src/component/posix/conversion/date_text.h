#pragma once

#include <optional>
#include <string>

namespace quillmark {

/// A date in the format of the United States, to the second: "1/1/2000 6:00:00 PM". Midnight shows
/// only the day, and day 0 only the time. `date` counts days from 30 December 1899. Its fraction is
/// the time of day, also before day 0. Returns nothing outside the years 100 to 9999.
[[nodiscard]] std::optional<std::string> shownDate(double date);

}  // namespace quillmark
