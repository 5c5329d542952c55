#pragma once

#include <optional>
#include <string>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"
#include "replay/input/recorded_call.h"

namespace quillmark::replay {

/// Reads the call lines of a recorded trace and skips all other lines.
///
/// A recording contains texts unescaped, with their quotes and line ends. So a call ends at the
/// first line end where its arguments are complete and the next line begins like one of a trace.
/// If no such line follows, the call ends at the first line end where its arguments are complete.
class RecordingReader final : public CallSource {
public:
    /// `input` stays the caller's.
    explicit RecordingReader(InputBuffer& input) : input_(input) {}

    [[nodiscard]] ReadResult next(Call& call) override;
    [[nodiscard]] const std::string& problem() const noexcept override { return problem_; }
    [[nodiscard]] std::size_t line() const noexcept override { return line_; }

private:
    /// The size of a call line in the input, without and with its line end.
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
    [[nodiscard]] bool looksForeign();
    ReadResult readCall(Call& call);
    ReadResult malformed(std::string problem);

    InputBuffer& input_;
    RecordedTexts texts_;
    std::string problem_;
    std::size_t line_ = 0;
    std::size_t nextLine_ = 1;
    bool carriageReturns_ = false;
    bool inReport_ = false;
    bool hasCalls_ = false;
};

}  // namespace quillmark::replay
