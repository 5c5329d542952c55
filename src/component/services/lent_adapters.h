#pragma once

#include <memory>

#include "dochtml/callbacks.h"
#include "foundation/orx_exception.h"
#include "host/app_profile_interface.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "platform/trace.h"
#include "settings/settings_store.h"

namespace quillmark {

/// Adapters that implement the driver's service interfaces with a host's callbacks. Each copies the
/// record. The result is null when the record lacks a callback.

[[nodiscard]] std::shared_ptr<SettingsStore> lentSettingsStore(const DochtmlSettingsStore& store);
[[nodiscard]] std::unique_ptr<AppProfileInterface> lentProfile(const DochtmlText& path);
[[nodiscard]] std::unique_ptr<CImageMapInterface> lentImageMaps(const DochtmlImageMaps& maps);
[[nodiscard]] std::unique_ptr<TraceListener> lentTraceListener(
    const DochtmlTraceListener& listener);
[[nodiscard]] std::unique_ptr<OrxExceptionLog> lentExceptionLog(const DochtmlExceptionLog& log);
[[nodiscard]] std::unique_ptr<DocumentObserver> lentObserver(const DochtmlObserver& observer);

}  // namespace quillmark
