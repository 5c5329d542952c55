#pragma once

#include <ctime>

#include "foundation/orx_string.h"

/// Properties of the system. Portable code asks here and does not test macros.
namespace quillmark::system_facts {

/// Whether file names that differ only in case denote the same file.
[[nodiscard]] bool namesIgnoreCase() noexcept;

/// Whether the system's own file names have drive letters.
[[nodiscard]] bool hasDrives() noexcept;

/// The system's directory for temporary files, in the driver's form, without a separator at the
/// end.
[[nodiscard]] OrxString temporaryDirectory();

/// The directory for the user's configuration, in the driver's form, without a separator at the
/// end. It may not exist.
[[nodiscard]] OrxString userConfigurationDirectory();

/// Converts a time to local time.
[[nodiscard]] std::tm localTime(std::time_t moment);

/// A number that no other running process has.
[[nodiscard]] unsigned long processId() noexcept;

}  // namespace quillmark::system_facts
