#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "platform/files/posix/descriptor.h"

/// File operations on descriptors. Interrupted system calls are repeated.
namespace quillmark::descriptor_io {

/// Opens a file as the system's `open` does. Programs that are started do not inherit the
/// descriptor. On failure it is not open, and `errno` says why.
[[nodiscard]] Descriptor openFile(const char* path, int flags) noexcept;

/// Writes the pieces one after the other, in a single system call if possible. False on the first
/// failure.
[[nodiscard]] bool writeAll(const Descriptor& file,
                            std::span<const std::string_view> pieces) noexcept;

/// Reads once. The result is the number of bytes, which may be smaller than the buffer, 0 only at
/// the end of the file, or -1 on failure.
[[nodiscard]] long readSome(const Descriptor& file, std::span<char> buffer) noexcept;

/// Copies the rest of `source` to `target`, inside the kernel if possible. False on failure.
[[nodiscard]] bool copyAll(const Descriptor& source, const Descriptor& target) noexcept;

}  // namespace quillmark::descriptor_io
