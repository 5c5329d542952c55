#pragma once

#include <optional>
#include <string>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"
#include "replay/input/recorded_call.h"

namespace quillmark::replay {

/// Reads the call lines of a recorded trace; what a trace reports between them is passed over.
///
/// Texts stand in a recording as they came, with their quotes and line ends, so a call line ends
/// where its arguments are complete at a line's end and what follows begins like a line of a
/// trace. When nothing of the kind follows, the first place where they are complete is it.
class RecordingReader final : public CallSource {
public:
    /// `input` stays the caller's.
    explicit RecordingReader(InputBuffer& input) : input_(input) {}

    [[nodiscard]] ReadResult next(Call& call) override;
    [[nodiscard]] const std::string& problem() const noexcept override { return problem_; }
    [[nodiscard]] std::size_t line() const noexcept override { return line_; }

private:
    /// A call line found in the input: its text and how many bytes it takes with its line end.
    struct Extent {
        std::size_t textSize = 0;
        std::size_t size = 0;
        bool carriageReturn = false;
    };
    enum class LineKind { call, trace, other, end };

    bool have(std::size_t count);
    [[nodiscard]] LineKind kindAt(std::size_t position);
    std::optional<std::size_t> lineEndFrom(std::size_t position);
    [[nodiscard]] Extent extentTo(std::size_t lineEnd);
    std::optional<Extent> findExtent(const RecordedOperation& what);
    bool skipToCall();
    void dropLine();
    ReadResult readCall(Call& call);
    ReadResult malformed(std::string problem);

    InputBuffer& input_;
    RecordedTexts texts_;
    std::string recorded_;
    std::string problem_;
    std::size_t line_ = 0;
    std::size_t nextLine_ = 1;
    bool carriageReturns_ = false;
    bool inReport_ = false;
};

}  // namespace quillmark::replay
