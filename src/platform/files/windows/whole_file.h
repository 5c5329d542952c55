#pragma once

#include <memory>
#include <string>

#include "platform/files/file_system.h"

namespace quillmark {

/// Opens a file that is written whole or not at all; see `FileSystem::openForReplacing`. A new file
/// is written under its own name and deleted after a failure. A file that exists is written beside
/// the old one and takes its place in the end, with its attributes and access rights. A link, and a
/// file with several names, is overwritten. Null on failure; then `FileFailure` has the reason.
[[nodiscard]] std::unique_ptr<OutputFile> openWholeFile(const std::wstring& name);

/// Copies the content of a file in the same way. `target` must not be the same file.
[[nodiscard]] bool copyWholeFile(const std::wstring& source, const std::wstring& target);

}  // namespace quillmark
