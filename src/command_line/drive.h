#pragma once

#include <string>
#include <vector>

namespace quillmark {

class OptionParser;

/// A drive letter and its directory, on a system without drives.
struct Drive {
    char letter = 'C';
    /// The system's own name, in UTF-8.
    std::string directory;
};

/// Adds the option `--drive X=DIR`. Each occurrence appends a drive to `drives`, which must outlive
/// the parser. A value of another form is a `BadUsage`.
void addDriveOption(OptionParser& parser, std::vector<Drive>& drives);

}  // namespace quillmark
