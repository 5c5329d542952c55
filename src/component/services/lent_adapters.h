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

/// A host's records of callbacks behind the contracts that the driver knows. The record is copied.
/// Null when it lacks a callback.

[[nodiscard]] std::shared_ptr<SettingsStore> lentSettingsStore(const DochtmlSettingsStore& store);
[[nodiscard]] std::unique_ptr<AppProfileInterface> lentProfile(const DochtmlText& path);
[[nodiscard]] std::unique_ptr<CImageMapInterface> lentImageMaps(const DochtmlImageMaps& maps);
[[nodiscard]] std::unique_ptr<TraceListener> lentTraceListener(
    const DochtmlTraceListener& listener);
[[nodiscard]] std::unique_ptr<OrxExceptionLog> lentExceptionLog(const DochtmlExceptionLog& log);
[[nodiscard]] std::unique_ptr<DocumentObserver> lentObserver(const DochtmlObserver& observer);

}  // namespace quillmark
