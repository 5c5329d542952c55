#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/orx_exception.h"
#include "foundation/orx_string.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "platform/trace.h"
#include "settings/settings_store.h"

namespace quillmark::replay {

/// What a host lends the driver for a run. What is absent keeps its default. Everything pointed
/// to stays the caller's and outlives the registration.
struct HostServices {
    /// Where the names of a drive lie on a system without drive letters.
    struct Drive {
        char letter = 'C';
        /// The system's own name, in UTF-8.
        std::string directory;
    };

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
