#pragma once

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// Starts the archiver "zip.exe" of the installation directory, to move `dataFile` into the
/// archive `dataFile` + ".zip"; an older archive of that name is deleted first.
///
/// Nobody waits for the archiver. Returns the archive's name once it was started, whatever then
/// becomes of it; `dataFile`, after an error line in the trace, when it was not.
[[nodiscard]] OrxString packDataFile(const OrxString& dataFile, const OrxString& installDir,
                                     const Trace& trace);

}  // namespace quillmark
