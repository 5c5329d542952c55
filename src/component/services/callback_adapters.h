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

[[nodiscard]] std::shared_ptr<SettingsStore> callbackSettingsStore(
    const DochtmlSettingsStore& store);
[[nodiscard]] std::unique_ptr<AppProfileInterface> callbackProfile(const DochtmlText& path);
[[nodiscard]] std::unique_ptr<CImageMapInterface> callbackImageMaps(const DochtmlImageMaps& maps);
[[nodiscard]] std::unique_ptr<TraceListener> callbackTraceListener(
    const DochtmlTraceListener& listener);
[[nodiscard]] std::unique_ptr<OrxExceptionLog> callbackExceptionLog(const DochtmlExceptionLog& log);
[[nodiscard]] std::unique_ptr<DocumentObserver> callbackObserver(const DochtmlObserver& observer);

}  // namespace quillmark
