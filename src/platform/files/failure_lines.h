#pragma once

#include <string_view>

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark::failure_lines {

/// The line before that of a failure starts so, and continues with the system's reason.
inline constexpr std::string_view reasonOpening = "ERR The system reports: ";

/// Writes the reason that `FileFailure` has noted to the trace. Nothing if there is none.
void writeReason(const Trace& trace);
/// Writes the reason, if there is one, and then a line of its own for a failure: `opening`, which
/// starts with "ERR ", and the name of the file.
void write(const Trace& trace, std::string_view opening, const OrxString& fileName);

}  // namespace quillmark::failure_lines
