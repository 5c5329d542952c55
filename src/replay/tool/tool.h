#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <span>
#include <string>

#include "replay/play/late_bound_document.h"
#include "replay/services/host_services.h"
#include "replay/services/provided_services.h"

namespace quillmark::replay {

/// The environment of the tool: its streams and the component that it plays into.
struct ReplayEnvironment {
    std::istream& input;
    std::ostream& output;
    std::ostream& errors;
    bool errorsGoToTerminal = false;
    /// The path of the program (UTF-8), from which the support files are found.
    std::string executable;
    DocumentMaker makeDocument;
    /// Provides the services to the documents for as long as the result lives.
    std::function<std::shared_ptr<ProvidedServices>(const HostServices&)> provideServices;
    /// Says which component is used and where it is, in one line for `--version`.
    std::function<std::string()> describeComponent;
};

/// The exit status of the tool.
enum ExitStatus { exitDone = 0, exitFailed = 1, exitBadInput = 2 };

/// Runs the tool: parses the arguments (UTF-8, without the program's name), provides the host
/// services that they ask for, plays the calls and reports the result. Returns the exit status. If
/// memory runs out, that is 1, with a message.
[[nodiscard]] int runTool(std::span<const std::string> arguments,
                          const ReplayEnvironment& environment);

}  // namespace quillmark::replay
