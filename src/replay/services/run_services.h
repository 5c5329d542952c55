#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "replay/input/image_map_file.h"
#include "replay/input/model_file.h"
#include "replay/services/host_services.h"
#include "replay/tool/option_files.h"
#include "replay/tool/options.h"

namespace quillmark::replay {

/// The parts of a host's services that the command line decides: settings, ini file, model,
/// image maps, drives.
class RunServices {
public:
    /// Reads the files named. `executable` is where the program lies. Throws `BadInput`.
    RunServices(const Options& options, const OptionFiles& files, const std::string& executable);

    /// Listeners are absent in it. It points into this object.
    [[nodiscard]] const HostServices& services() const noexcept { return services_; }

private:
    std::optional<ModelFile> model_;
    std::optional<ImageMapFile> imageMaps_;
    HostServices services_;
};

/// A file that comes into being with the first thing written to it.
class LateFile {
public:
    explicit LateFile(std::filesystem::path name) : name_(std::move(name)) {}

    /// False, once, when the file cannot be written.
    [[nodiscard]] bool write(std::string_view text);

private:
    std::filesystem::path name_;
    std::ofstream file_;
    bool told_ = false;
};

}  // namespace quillmark::replay
