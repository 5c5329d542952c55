#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "platform/out_of_memory.h"
#include "platform/trace.h"

namespace quillmark {

/// Records the host's calls, one line per call, in the form of source code.
///
/// Text arguments are quoted but not escaped. A text that holds a quote or a line feed may give a
/// line that cannot be parsed back. No line is built while the trace is off. A line for which there
/// is no memory is lost, but the call is made.
class CallTrace {
public:
    explicit CallTrace(Trace& trace) noexcept : trace_(trace) {}

    /// An argument that is written without quotes.
    struct Word {
        std::string_view text;
    };

    /// Writes one call line, for example `call("insertFile", name, kind)`.
    template <typename... Arguments>
    void call(std::string_view operation, const Arguments&... arguments) {
        if (!trace_.isTrace(Trace::calls)) {
            return;
        }
        survive(trace_, lostLine, [&] {
            std::string line = opening(operation);
            [[maybe_unused]] std::string_view separator;
            ((line.append(separator), append(line, arguments), separator = ","), ...);
            write(line);
        });
    }

    /// Writes the line of `insertPageBreak`, followed by an empty line.
    void pageBreak();

private:
    static constexpr const char* lostLine = "a line of the call trace";

    [[nodiscard]] static std::string opening(std::string_view operation);
    static void append(std::string& line, std::string_view text);
    static void append(std::string& line, Word word);
    static void append(std::string& line, std::integral auto number) {
        line.append(std::to_string(number));
    }
    void write(std::string& line);

    Trace& trace_;
};

}  // namespace quillmark
