#include "driver/boundary/call_trace.h"

namespace quillmark {

namespace {

constexpr std::string_view object = "dochtml->";
constexpr std::string_view callEnd = ");\n";

}  // namespace

std::string CallTrace::opening(std::string_view operation) {
    return std::string(object).append(operation).append("(");
}

void CallTrace::append(std::string& line, std::string_view text) {
    line.append("\"").append(text).append("\"");
}

void CallTrace::append(std::string& line, Word word) {
    line.append(word.text);
}

void CallTrace::write(std::string& line) {
    trace_.write(Trace::calls, line.append(callEnd));
}

void CallTrace::pageBreak() {
    if (trace_.isTrace(Trace::calls)) {
        survive(trace_, lostLine, [&] {
            trace_.write(Trace::calls, opening("insertPageBreak").append(callEnd).append("\n"));
        });
    }
}

}  // namespace quillmark
