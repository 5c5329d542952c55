#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "platform/posix/descriptor.h"

namespace quillmark::descriptor_io {

/// `open`, not cut short by a signal, and not handed on to programs that are started.
[[nodiscard]] Descriptor openFile(const char* path, int flags) noexcept;

/// Writes all pieces behind each other, with one system call where the system takes them whole.
/// False on the first failure.
[[nodiscard]] bool writeAll(const Descriptor& file,
                            std::span<const std::string_view> pieces) noexcept;

/// One read of the system, not cut short by a signal: up to as many bytes as `buffer` holds, fewer
/// at the end or where a pipe holds no more for now; 0 at the end only, -1 on a failure.
[[nodiscard]] long readSome(const Descriptor& file, std::span<char> buffer) noexcept;

/// Copies from one file to the other up to the end, inside the system where it can.
[[nodiscard]] bool copyAll(const Descriptor& source, const Descriptor& target) noexcept;

}  // namespace quillmark::descriptor_io
