#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <span>
#include <string>

#include "replay/play/late_bound_document.h"
#include "replay/services/host_services.h"

namespace quillmark::replay {

/// What the tool finds around itself.
struct Surroundings {
    std::istream& input;
    std::ostream& output;
    std::ostream& errors;
    bool errorsGoToTerminal = false;
    /// Where the program lies (UTF-8); the support files are found from there.
    std::string executable;
    DocumentMaker makeDocument;
    /// Lends the run's services to where the documents come from, for the life of what it returns.
    /// Empty when they are documents of this process, which finds the services without it.
    std::function<std::shared_ptr<void>(const HostServices&)> lendServices = {};
};

/// How a run ended: the exit status of the tool.
enum ExitStatus { exitDone = 0, exitFailed = 1, exitBadInput = 2 };

/// The tool: parses the arguments behind the program's name (UTF-8), lends the driver what they
/// say, plays the calls and tells how it went. Returns the exit status.
[[nodiscard]] int runTool(std::span<const std::string> arguments, const Surroundings& around);

}  // namespace quillmark::replay
