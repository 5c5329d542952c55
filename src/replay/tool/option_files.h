#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "command_line/drive.h"
#include "foundation/orx_string.h"
#include "platform/text_encoding.h"

namespace quillmark::replay {

/// Resolves the file names of the command line. The tool itself works in UTF-8. A name that begins
/// with the letter of a drive is found on that drive; every other is the system's own. Relative
/// names count from the directory where the tool was started, even if the current directory changes
/// later.
class OptionFiles {
public:
    /// Throws what `startDirectory` throws.
    explicit OptionFiles(std::vector<Drive> drives);

    /// The name in the form in which the tool opens the file.
    [[nodiscard]] std::filesystem::path native(const std::string& name) const;
    /// The name in the driver's form, in UTF-8; a name on a drive keeps its letter.
    [[nodiscard]] OrxString driver(const std::string& name) const;
    /// The drives of the run, with absolute directories. On a system without drives, a letter
    /// without a directory gets the one named after it ("C:") where the tool was started.
    [[nodiscard]] std::vector<Drive> allDrives() const;

private:
    [[nodiscard]] const Drive* driveOf(const std::string& name) const;

    std::vector<Drive> drives_;
};

/// Throws `BadInput` for a name (UTF-8) that a document in that encoding cannot hold: it would
/// become the name of another file.
void checkFileName(const OrxString& name, const TextEncoding& encoding);

/// The directory where the tool was started. Throws `BadInput` when the system cannot determine
/// it.
[[nodiscard]] std::filesystem::path startDirectory();

}  // namespace quillmark::replay
