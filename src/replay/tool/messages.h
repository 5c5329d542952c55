#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace quillmark::replay {

/// The tool's lines on standard error: what went wrong, and, on a terminal, how far a long run
/// has come.
class Messages {
public:
    /// `stream` stays the caller's. `progress` says whether progress is shown.
    Messages(std::ostream& stream, bool progress);

    /// One line: a line end in it becomes a blank, other control characters (a name may hold
    /// anything) become "?".
    void tell(std::string_view line);
    /// Shows how far the run is, once it has taken a while and not more often than eyes follow.
    void progress(std::size_t calls, std::size_t pages);
    /// Takes the progress line off the screen.
    void clearProgress();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& stream_;
    bool showsProgress_;
    Clock::time_point nextProgress_;
    std::size_t shown_ = 0;
};

/// "1 page", "2 pages"; `plural` when it is not the word with an s.
[[nodiscard]] std::string counted(std::size_t count, std::string_view word,
                                  std::string_view plural = {});

}  // namespace quillmark::replay
