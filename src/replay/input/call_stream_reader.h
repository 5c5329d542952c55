#pragma once

#include <memory>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"

namespace quillmark::replay {

/// Reads a call stream: JSON Lines with one array per call, which contains the name of the
/// operation and its arguments. Blank lines are skipped. The name, the number of arguments, their
/// types and ranges are all checked before a call is returned.
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
