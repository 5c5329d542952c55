#pragma once

#include <memory>

#include "platform/files/file_system.h"
#include "platform/files/windows/handle.h"

namespace quillmark {

/// A stream that reads or writes an open file. Null if the handle is not open.
[[nodiscard]] std::unique_ptr<InputFile> makeInputFile(Handle file);
[[nodiscard]] std::unique_ptr<OutputFile> makeOutputFile(Handle file);

}  // namespace quillmark
