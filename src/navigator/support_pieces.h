#pragma once

#include "foundation/orx_string.h"
#include "navigator/data/data_files.h"
#include "platform/trace.h"

namespace quillmark {

/// Puts the navigator's script and style sheet together from the pieces in the directory `source`
/// and writes them. Its file "order.txt" names the pieces. False, with a line in the trace or the
/// exception log, when a piece is missing or a file cannot be written.
[[nodiscard]] bool writeNavigatorScripts(const OrxString& source, const DataFiles& files,
                                         const Trace& trace);

}  // namespace quillmark
