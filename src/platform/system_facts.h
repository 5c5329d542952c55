#pragma once

#include <ctime>

#include "foundation/orx_string.h"

/// What differs from system to system and is a plain fact: asked here, never by a macro.
namespace quillmark::system_facts {

/// Whether two file names that differ in case only are the same file.
[[nodiscard]] bool namesIgnoreCase() noexcept;

/// Whether the system's own file names have drive letters.
[[nodiscard]] bool hasDrives() noexcept;

/// The system's directory for temporary files, in the driver's form, no separator at its end.
[[nodiscard]] OrxString temporaryDirectory();

/// The directory that keeps the user's own configuration, in the driver's form, no separator at
/// its end. It need not exist.
[[nodiscard]] OrxString userConfigurationDirectory();

/// A moment in the system's local time.
[[nodiscard]] std::tm localTime(std::time_t moment);

/// Tells this process from every other that runs on the system.
[[nodiscard]] unsigned long processId() noexcept;

}  // namespace quillmark::system_facts
