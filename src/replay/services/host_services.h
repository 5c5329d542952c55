#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "command_line/drive.h"
#include "foundation/orx_exception.h"
#include "foundation/orx_string.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "platform/trace.h"
#include "settings/settings_store.h"

namespace quillmark::replay {

/// The files that the component may use, when it is confined. Names are the system's own.
struct FilesInReach {
    std::vector<std::string> writable;
    std::vector<std::string> readable;
    /// Hears what was refused, for the user ("read /etc/passwd").
    std::function<void(const std::string& what)> refused;
};

/// The services that a host provides to the driver for a run. An absent one keeps its default. The
/// caller owns what the pointers refer to and keeps it alive during the run.
struct HostServices {
    std::shared_ptr<SettingsStore> settings;
    std::optional<OrxString> profilePath;
    CImageMapInterface* imageMaps = nullptr;
    const MMSchema* model = nullptr;
    int schemaType = 0;
    std::vector<Drive> drives;
    TraceListener* traceListener = nullptr;
    OrxExceptionLog* exceptionLog = nullptr;
    DocumentObserver* observer = nullptr;
    std::optional<FilesInReach> filesInReach;
};

}  // namespace quillmark::replay
