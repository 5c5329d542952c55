#pragma once

#include <optional>
#include <string>

#include "replay/input/host_files/image_map_file.h"
#include "replay/input/host_files/model_file.h"
#include "replay/services/host_services.h"
#include "replay/tool/option_files.h"
#include "replay/tool/options.h"

namespace quillmark::replay {

/// The host services that the command line asks for: settings, ini file, model, image maps and
/// drives.
class RequestedServices {
public:
    /// Reads the files that the options name. `executable` is the path of the program. Throws
    /// `BadInput`.
    RequestedServices(const Options& options, const OptionFiles& files,
                      const std::string& executable);

    /// The services, without listeners. They point into this object.
    [[nodiscard]] const HostServices& services() const noexcept { return services_; }
    /// The encoding of the documents, as far as the settings decide it.
    [[nodiscard]] const TextEncoding& encoding() const noexcept { return *encoding_; }

private:
    const TextEncoding* encoding_ = &TextEncoding::codePage();
    std::optional<ModelFile> model_;
    std::optional<ImageMapFile> imageMaps_;
    HostServices services_;
};

}  // namespace quillmark::replay
