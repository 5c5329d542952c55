#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "replay/input/host_files/image_map_file.h"
#include "replay/input/host_files/model_file.h"
#include "support/environment_variable.h"
#include "support/memory_settings_store.h"
#include "support/temp_dir.h"

namespace quillmark::testing {

using FileTree = std::map<std::string, std::string>;

/// The directories that the streams use: "in" with an installation and the files that documents
/// refer to, and "out" for what is written.
class Stage {
public:
    Stage();

    [[nodiscard]] std::string in() const { return dir_.file("in").str(); }
    [[nodiscard]] std::string out() const { return dir_.file("out").str(); }
    [[nodiscard]] std::string nativeFile(const std::string& name) const {
        return dir_.nativeFile(name);
    }
    /// Removes what earlier runs wrote.
    void clear() const;
    /// All files below "out" whose names begin with `start`, with their bytes.
    [[nodiscard]] FileTree written(const std::string& start = {}) const;

private:
    TempDir dir_;
    EnvironmentVariable clock_{"SOURCE_DATE_EPOCH", "0"};
};

/// A host's services, as files of the stage describe them. The settings store is installed too.
struct StageServices {
    explicit StageServices(const Stage& stage);
    StageServices(const StageServices&) = delete;
    StageServices& operator=(const StageServices&) = delete;
    ~StageServices();

    InstalledSettingsStore settings;
    replay::ModelFile model;
    replay::ImageMapFile imageMaps;
};

}  // namespace quillmark::testing
