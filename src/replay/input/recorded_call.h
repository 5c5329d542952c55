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

/// Whether a call of that shape has a text among its arguments, which may hold line ends.
[[nodiscard]] constexpr bool hasText(RecordedForm form) noexcept {
    return form == RecordedForm::text || form == RecordedForm::twoTexts ||
           form == RecordedForm::textAndNumber;
}

/// An operation that writes a call line, told from the beginning of one.
struct RecordedOperation {
    const Operation* operation = nullptr;
    RecordedForm form = RecordedForm::plain;
    /// Where the arguments begin in the line.
    std::size_t arguments = 0;
};

/// What every call line begins with.
inline constexpr std::string_view callOpening = "dochtml->";
/// How much of a line tells what it is; no beginning that matters is longer.
inline constexpr std::size_t openingSize = 64;

/// Reads the beginning of a line, of which at least `openingSize` bytes or all are there. Nothing
/// when it is not that of a call line.
[[nodiscard]] std::optional<RecordedOperation> recordedOperation(std::string_view line) noexcept;

/// Whether a line is of those that a trace holds besides its call lines: errors, warnings,
/// reports.
[[nodiscard]] bool isReportLine(std::string_view line) noexcept;

/// Finds where a call line could end: just in front of a line end, with its arguments complete.
class CallEnd {
public:
    explicit CallEnd(const RecordedOperation& what) noexcept : what_(what) {}

    /// Whether that can be the whole call. `text` begins with the call and grows from question to
    /// question, so that what has been searched is not searched again.
    [[nodiscard]] bool isAtEndOf(std::string_view text) noexcept;

private:
    [[nodiscard]] bool hasTwoTexts(std::string_view arguments) noexcept;

    const RecordedOperation& what_;
    std::size_t searched_ = 1;
};

/// The texts of a recorded call as the operation takes them.
using RecordedTexts = std::array<std::u16string, 2>;

/// Takes a whole call line, without its line end and with line feeds alone between lines, apart.
/// Returns what is wrong with it, empty when nothing is. `texts` keeps the texts of `call`.
[[nodiscard]] std::string parseRecorded(std::string_view line, const RecordedOperation& what,
                                        RecordedTexts& texts, Call& call);

}  // namespace quillmark::replay
