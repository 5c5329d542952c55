#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/files/posix/descriptor.h"

/// File operations on descriptors. Interrupted system calls are repeated.
namespace quillmark::descriptor_io {

/// Opens a file as the system's `open` does. Programs that are started do not inherit the
/// descriptor. On failure it is not open, and `errno` says why.
[[nodiscard]] Descriptor openFile(const char* path, int flags) noexcept;

/// The same for a name in a directory that is open, where no link is followed. If the directory is
/// not open, the name counts from the current one, and links are followed. So it is with the
/// functions that follow.
[[nodiscard]] Descriptor openFileIn(const Descriptor& directory, const char* name,
                                    int flags) noexcept;
/// Nothing on failure, and `errno` says why.
[[nodiscard]] std::optional<struct stat> statusIn(const Descriptor& directory,
                                                  const char* name) noexcept;
[[nodiscard]] bool renameIn(const Descriptor& directory, const std::string& from,
                            const std::string& to) noexcept;
bool removeIn(const Descriptor& directory, const std::string& name) noexcept;

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
