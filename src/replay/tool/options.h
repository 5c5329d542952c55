#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "command_line/drive.h"

namespace quillmark::replay {

/// A command line, parsed and checked. Texts are UTF-8, as given.
struct Options {
    struct Setting {
        std::string group;
        std::string name;
        std::string value;
        /// The value is a file name, so it may be on one of the drives.
        bool isFileName = false;
    };

    std::vector<std::string> inputs;
    std::optional<std::string> output;
    std::optional<std::string> settingsFile;
    /// In the order of the command line; a later one wins.
    std::vector<Setting> settings;
    std::optional<std::string> iniFile;
    std::optional<std::string> modelFile;
    std::optional<std::string> imageMapFile;
    std::vector<Drive> drives;
    std::optional<std::int16_t> traceLevel;
    std::optional<std::string> logFile;
    std::optional<std::string> exceptionFile;
    bool strict = false;
    bool verbose = false;
    /// Directories that a confined run may read.
    std::vector<std::string> allowRead;
    bool confine = false;
    bool quiet = false;
    bool help = false;
    bool version = false;
};

/// Parses the arguments, without the program's name. Throws `BadUsage`.
[[nodiscard]] Options parseOptions(std::span<const std::string> arguments);

/// Writes the text that `--help` shows.
void writeHelp(std::ostream& out);

}  // namespace quillmark::replay
