#pragma once

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
};

}  // namespace quillmark::replay
