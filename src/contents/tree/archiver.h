#pragma once

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// Starts the archiver "zip.exe" of the installation directory, which moves `dataFile` into the
/// archive `dataFile` + ".zip". Deletes an older archive of that name first.
///
/// Does not wait for the archiver. Returns the path of the archive if the archiver was started,
/// even if it fails later. Otherwise writes an error line to the trace and returns `dataFile`.
[[nodiscard]] OrxString packDataFile(const OrxString& dataFile, const OrxString& installDir,
                                     const Trace& trace);

}  // namespace quillmark
