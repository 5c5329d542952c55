#pragma once

#include <memory>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"

namespace quillmark::replay {

/// Reads a call stream: JSON Lines, one array of an operation's name and its arguments a line,
/// blank lines between them. A call is checked whole before it is handed out: its name, the
/// number of its arguments, their kinds and ranges.
class CallStreamReader final : public CallSource {
public:
    /// `input` stays the caller's.
    explicit CallStreamReader(InputBuffer& input);
    CallStreamReader(const CallStreamReader&) = delete;
    CallStreamReader& operator=(const CallStreamReader&) = delete;
    ~CallStreamReader() override;

    [[nodiscard]] ReadResult next(Call& call) override;
    [[nodiscard]] const std::string& problem() const noexcept override { return problem_; }
    [[nodiscard]] std::size_t line() const noexcept override { return line_; }

private:
    class Parser;

    /// Takes the next line off the input, zero-terminated; false at the end.
    bool takeLine(std::span<char>& line);

    InputBuffer& input_;
    std::unique_ptr<Parser> parser_;
    std::string problem_;
    std::size_t line_ = 0;
};

}  // namespace quillmark::replay
