#pragma once

#include <istream>
#include <ostream>
#include <span>
#include <string>

#include "replay/late_bound_document.h"

namespace quillmark::replay {

/// What the tool finds around itself.
struct Surroundings {
    std::istream& input;
    std::ostream& output;
    std::ostream& errors;
    bool errorsAreWatched = false;
    /// Where the program lies (UTF-8); the support files are found from there.
    std::string executable;
    DocumentMaker makeDocument;
};

/// How a run ended: the exit status of the tool.
enum ExitStatus { exitDone = 0, exitFailed = 1, exitBadInput = 2 };

/// The tool: parses the arguments behind the program's name (UTF-8), lends the driver what they
/// say, plays the calls and tells how it went. Returns the exit status.
[[nodiscard]] int runTool(std::span<const std::string> arguments, const Surroundings& around);

}  // namespace quillmark::replay
