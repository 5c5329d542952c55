#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "replay/services/host_services.h"

namespace quillmark::replay {

/// A command line, taken apart and checked. Texts are UTF-8, as given.
struct Options {
    struct Setting {
        std::string group;
        std::string name;
        std::string value;
        /// The value is a file name and goes through the drives.
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
    std::vector<HostServices::Drive> drives;
    std::optional<std::int16_t> traceLevel;
    std::optional<std::string> logFile;
    std::optional<std::string> exceptionFile;
    bool quiet = false;
    bool help = false;
    bool version = false;
};

/// Takes the arguments behind the program's name apart. Throws `BadInput` on bad usage.
[[nodiscard]] Options parseOptions(std::span<const std::string> arguments);

/// What `--help` shows.
void writeHelp(std::ostream& out);

}  // namespace quillmark::replay
