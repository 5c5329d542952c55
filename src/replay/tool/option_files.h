#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "foundation/orx_string.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// File names of the command line: one that begins with the letter of a drive lies where the
/// drive does, every other is the system's own. They count from the directory where the tool was
/// started, whatever becomes of it later.
class OptionFiles {
public:
    explicit OptionFiles(std::vector<HostServices::Drive> drives);

    /// The name as the tool opens it.
    [[nodiscard]] std::filesystem::path native(const std::string& name) const;
    /// The name as the driver takes it; a name on a drive keeps its letter. Throws `BadInput` for
    /// one that the driver's 8-bit code page cannot hold.
    [[nodiscard]] OrxString driver(const std::string& name) const;
    /// The drives of the run, with directories that no change of the current directory moves. On
    /// a system without drives a letter that was given no directory lies in one of its own name,
    /// "C:", where the tool was started.
    [[nodiscard]] std::vector<HostServices::Drive> allDrives() const;

private:
    [[nodiscard]] const HostServices::Drive* driveOf(const std::string& name) const;

    std::vector<HostServices::Drive> drives_;
};

/// Where the tool was started. Throws `BadInput` when the system cannot tell, or the driver could
/// not hold the name.
[[nodiscard]] std::filesystem::path startDirectory();
/// A path as a UTF-8 text, and back.
[[nodiscard]] std::string utf8Path(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path pathFrom(const std::string& utf8);

}  // namespace quillmark::replay
