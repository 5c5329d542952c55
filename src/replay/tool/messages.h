#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace quillmark::replay {

/// Writes the tool's messages to standard error and, on a terminal, the progress of a long run.
class Messages {
public:
    /// `stream` stays the caller's. `progress` says whether progress is shown.
    Messages(std::ostream& stream, bool progress);

    /// Writes one line. A line end in it becomes a blank; other control characters, which a file
    /// name may contain, become "?".
    void write(std::string_view line);
    /// Shows the progress if the run has taken a while and the last update is not too recent.
    void progress(std::size_t calls, std::size_t pages);
    /// Removes the progress line from the screen.
    void clearProgress();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& stream_;
    bool showsProgress_;
    Clock::time_point nextProgress_;
    std::size_t shown_ = 0;
};

/// "1 page" or "2 pages". `plural` is for words that do not just take an "s".
[[nodiscard]] std::string counted(std::size_t count, std::string_view word,
                                  std::string_view plural = {});

}  // namespace quillmark::replay
