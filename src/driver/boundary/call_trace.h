#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "platform/trace.h"

namespace quillmark {

/// Records the host's calls as lines that read like the call in source form.
///
/// Text arguments stand between quotes as they arrive, unescaped: a text that holds a quote or a
/// line feed gives a line that may not parse back. Nothing is built while the trace is off.
class CallTrace {
public:
    explicit CallTrace(Trace& trace) noexcept : trace_(trace) {}

    /// An argument that stands without quotes.
    struct Word {
        std::string_view text;
    };

    /// Writes one call line, for example `call("insertFile", name, kind)`.
    template <typename... Arguments>
    void call(std::string_view operation, const Arguments&... arguments) {
        if (trace_.isTrace(Trace::calls)) {
            std::string line = opening(operation);
            [[maybe_unused]] std::string_view separator;
            ((line.append(separator), append(line, arguments), separator = ","), ...);
            write(line);
        }
    }

    /// The same for a call that ends a page: an empty line follows it.
    void pageBreak();

private:
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
