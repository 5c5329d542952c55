#include "replay/input/recording_reader.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quillmark::replay {

namespace {

/// How far the search for the end of a call continues after a possible end.
constexpr std::size_t farEnough = std::size_t{1} << 20U;

/// Removes the carriage returns of line ends. Some systems write them into logs; the driver wrote
/// line feeds only. Returns what is left of the text.
std::span<char> keepLineFeedsAlone(std::span<char> text) noexcept {
    std::size_t to = 0;
    for (std::size_t from = 0; from < text.size(); ++from) {
        const bool pair = text[from] == '\r' && from + 1 < text.size() && text[from + 1] == '\n';
        if (!pair) {
            text[to++] = text[from];
        }
    }
    return text.first(to);
}

std::size_t countLines(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

}  // namespace

/// Reads until the buffer has that many bytes. False if the input has fewer.
bool RecordingReader::have(std::size_t count) {
    while (input_.view().size() < count) {
        if (!input_.fill()) {
            return false;
        }
    }
    return true;
}

RecordingReader::LineKind RecordingReader::kindAt(std::size_t position) {
    have(position + openingSize);
    const std::string_view rest = input_.view().substr(position);
    if (rest.empty()) {
        return LineKind::end;
    }
    if (recordedOperation(rest)) {
        return LineKind::call;
    }
    return isReportLine(rest) ? LineKind::trace : LineKind::other;
}

/// The position of the first line feed from `position` on. Without one, the end of the input, if
/// that is after `position`.
std::optional<std::size_t> RecordingReader::lineEndFrom(std::size_t position) {
    std::size_t searched = position;
    for (;;) {
        const std::size_t end = input_.view().find('\n', searched);
        if (end != std::string_view::npos) {
            return end;
        }
        searched = input_.view().size();
        if (!input_.fill()) {
            return position < searched ? std::optional(searched) : std::nullopt;
        }
    }
}

RecordingReader::Extent RecordingReader::extentTo(std::size_t lineEnd) {
    const std::string_view bytes = input_.view();
    const bool carriageReturn = lineEnd > 0 && bytes[lineEnd - 1] == '\r';
    const std::size_t textSize = carriageReturn ? lineEnd - 1 : lineEnd;
    return {textSize, std::min(lineEnd + 1, bytes.size()), carriageReturn};
}

std::optional<RecordingReader::Extent> RecordingReader::findExtent(const RecordedOperation& what) {
    CallEnd end(what);
    std::optional<Extent> first;
    std::size_t position = 0;
    while (const std::optional<std::size_t> lineEnd = lineEndFrom(position)) {
        const Extent extent = extentTo(*lineEnd);
        const bool closes = end.isAtEndOf(input_.view().substr(0, extent.textSize));
        if (!hasText(what.form)) {
            return closes ? std::optional(extent) : std::nullopt;
        }
        position = extent.size;
        const LineKind following = closes || first ? kindAt(position) : LineKind::other;
        if (closes && following != LineKind::other) {
            return extent;
        }
        if (closes && !first) {
            first = extent;
        }
        if (first && (following != LineKind::other || position - first->size > farEnough)) {
            return first;
        }
    }
    return first;
}

void RecordingReader::dropLine() {
    for (;;) {
        const std::size_t end = input_.view().find('\n');
        if (end != std::string_view::npos) {
            input_.drop(end + 1);
            ++nextLine_;
            return;
        }
        input_.drop(input_.view().size());
        if (!input_.fill()) {
            return;
        }
    }
}

/// Skips blank lines and reports; false at the end of the input. A report may contain names with
/// line ends, so the lines after it belong to it until a line of a trace begins.
bool RecordingReader::skipToCall() {
    for (;;) {
        const LineKind kind = kindAt(0);
        if (kind == LineKind::end || kind == LineKind::call) {
            return kind == LineKind::call;
        }
        const std::string_view rest = input_.view();
        const std::size_t first = rest.find_first_not_of(" \t\r");
        const bool blank = first == std::string_view::npos || rest[first] == '\n';
        const bool strange = rest.starts_with(callOpening) || !inReport_;
        if (kind == LineKind::other && !blank && strange) {
            return true;
        }
        inReport_ = inReport_ || kind == LineKind::trace;
        dropLine();
    }
}

ReadResult RecordingReader::malformed(std::string problem) {
    problem_ = std::move(problem);
    return ReadResult::malformed;
}

/// An input that was meant as a call stream, but begins with an object or a comment.
bool RecordingReader::looksForeign() {
    const std::string_view rest = input_.view();
    const std::size_t first = rest.find_first_not_of(" \t\r\n");
    return !hasCalls_ && first != std::string_view::npos &&
           (rest[first] == '{' || rest[first] == '#');
}

ReadResult RecordingReader::readCall(Call& call) {
    const std::optional<RecordedOperation> what = recordedOperation(input_.view());
    if (!what) {
        return malformed(looksForeign() ? "not a call: a call stream has one JSON array per line, "
                                          "for instance [\"insertText\",\"Hello\"]"
                                        : "not a line of a recorded trace");
    }
    const std::string name = what->operation->name;
    if (hasText(what->form) && input_.view().substr(what->arguments, 1) != "\"") {
        return malformed("wrong arguments for " + name);
    }
    const std::optional<Extent> extent = findExtent(*what);
    if (!extent) {
        return malformed("the call of " + name + " is not complete");
    }
    carriageReturns_ = extent->size == extent->textSize ? carriageReturns_ : extent->carriageReturn;
    nextLine_ += countLines(input_.view().substr(0, extent->size));
    // The line stays in the input's buffer: a copy of a very long one would cost too much.
    std::span<char> text = input_.unread().first(extent->textSize);
    if (carriageReturns_) {
        text = keepLineFeedsAlone(text);
    }
    input_.drop(extent->size);
    hasCalls_ = true;
    call.operation = what->operation;
    call.recorded = {text.data(), text.size()};
    std::string problem = parseRecorded(call.recorded, *what, texts_, call);
    return problem.empty() ? ReadResult::call : malformed(std::move(problem));
}

ReadResult RecordingReader::next(Call& call) {
    const bool more = skipToCall();
    line_ = nextLine_;
    call.line = line_;
    inReport_ = false;
    if (more) {
        return readCall(call);
    }
    return input_.failed() ? malformed(unreadable) : ReadResult::end;
}

}  // namespace quillmark::replay
