#pragma once

#include <vector>

#include "command_line/drive.h"

namespace quillmark {

/// Enters drives into this process's drive table for as long as it lives. Code that opens files by
/// the driver's names, such as a settings store, then finds them on their drives.
class ScopedDrives {
public:
    explicit ScopedDrives(std::vector<Drive> drives);
    ScopedDrives(const ScopedDrives&) = delete;
    ScopedDrives& operator=(const ScopedDrives&) = delete;
    /// Removes the letters from the table, whatever they meant before.
    ~ScopedDrives();

private:
    std::vector<Drive> drives_;
};

}  // namespace quillmark
