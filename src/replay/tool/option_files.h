#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "command_line/drive.h"
#include "foundation/orx_string.h"

namespace quillmark::replay {

/// Resolves the file names of the command line. A name that begins with the letter of a drive is
/// found on that drive; every other is the system's own. Relative names count from the directory
/// where the tool was started, even if the current directory changes later.
class OptionFiles {
public:
    /// Throws what `startDirectory` throws.
    explicit OptionFiles(std::vector<Drive> drives);

    /// The name in the form in which the tool opens the file.
    [[nodiscard]] std::filesystem::path native(const std::string& name) const;
    /// The name in the driver's form; a name on a drive keeps its letter. Throws `BadInput` for
    /// one that the driver's 8-bit code page cannot hold.
    [[nodiscard]] OrxString driver(const std::string& name) const;
    /// The drives of the run, with absolute directories. On a system without drives, a letter
    /// without a directory gets the one named after it ("C:") where the tool was started.
    [[nodiscard]] std::vector<Drive> allDrives() const;

private:
    [[nodiscard]] const Drive* driveOf(const std::string& name) const;

    std::vector<Drive> drives_;
};

/// The directory where the tool was started. Throws `BadInput` when the system cannot determine
/// it or when the driver's 8-bit code page cannot hold its name.
[[nodiscard]] std::filesystem::path startDirectory();

}  // namespace quillmark::replay
