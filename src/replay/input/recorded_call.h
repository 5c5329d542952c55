#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "replay/input/call_source.h"

namespace quillmark::replay {

/// The shape of a call line in a recorded trace. It follows from the operation's parameters.
enum class RecordedForm { plain, number, attribute, text, twoTexts, textAndNumber };

/// Whether a call of that shape has a text argument, which may contain line ends.
[[nodiscard]] constexpr bool hasText(RecordedForm form) noexcept {
    return form == RecordedForm::text || form == RecordedForm::twoTexts ||
           form == RecordedForm::textAndNumber;
}

/// The operation of a call line, as recognized from the beginning of the line.
struct RecordedOperation {
    const Operation* operation = nullptr;
    RecordedForm form = RecordedForm::plain;
    /// Where the arguments begin in the line.
    std::size_t arguments = 0;
};

/// What every call line begins with.
inline constexpr std::string_view callOpening = "dochtml->";
/// How many bytes of a line are needed to recognize it.
inline constexpr std::size_t openingSize = 64;

/// Recognizes a call line by its beginning. `line` must have at least `openingSize` bytes or be
/// complete. Nothing if it is not a call line.
[[nodiscard]] std::optional<RecordedOperation> recordedOperation(std::string_view line) noexcept;

/// Whether a line is one of the other lines of a trace: errors, warnings and reports.
[[nodiscard]] bool isReportLine(std::string_view line) noexcept;

/// Finds where a call line can end: directly in front of a line end, with complete arguments.
class CallEnd {
public:
    explicit CallEnd(const RecordedOperation& what) noexcept : what_(what) {}

    /// Whether `text` can be the whole call. It begins with the call and must be longer in each
    /// call of this function, which does not search the same bytes twice.
    [[nodiscard]] bool isAtEndOf(std::string_view text) noexcept;

private:
    [[nodiscard]] bool hasTwoTexts(std::string_view arguments) noexcept;

    const RecordedOperation& what_;
    std::size_t searched_ = 1;
};

/// The texts of a recorded call as the operation takes them.
using RecordedTexts = std::array<std::u16string, 2>;

/// Parses a whole call line, which is in the encoding in force. It has no line end at its end, and
/// only line feeds between lines.
/// Returns what is wrong with it, or an empty string. `texts` stores the texts of `call`.
[[nodiscard]] std::string parseRecorded(std::string_view line, const RecordedOperation& what,
                                        RecordedTexts& texts, Call& call);

}  // namespace quillmark::replay
