#pragma once

#include <memory>

#include "platform/file_system.h"
#include "platform/windows/handle.h"

namespace quillmark {

/// The stream over an open file, or null for a handle that is not open.
[[nodiscard]] std::unique_ptr<InputFile> makeInputFile(Handle file);
[[nodiscard]] std::unique_ptr<OutputFile> makeOutputFile(Handle file);

}  // namespace quillmark
