#include "platform/files/failure_lines.h"

#include <string>

#include "platform/files/file_failure.h"

namespace quillmark::failure_lines {

void writeReason(const Trace& trace) {
    if (FileFailure::isNoted() && trace.isTrace(Trace::errors)) {
        trace.write(Trace::errors, std::string(reasonOpening) + FileFailure::reason() + "\n");
    }
}

void write(const Trace& trace, std::string_view opening, const OrxString& fileName) {
    writeReason(trace);
    if (trace.isTrace(Trace::errors)) {
        trace.write(Trace::errors, std::string(opening) + fileName.str() + "\n");
    }
}

}  // namespace quillmark::failure_lines
