#pragma once

#include "dochtml/callbacks.h"
#include "foundation/orx_exception.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "platform/trace.h"
#include "settings/settings_store.h"

namespace quillmark::replay {

/// Services of this process as the records of callbacks that a component takes. What is passed
/// stays the caller's and must outlive the record's use. Nothing is thrown out of a callback.

[[nodiscard]] DochtmlSettingsStore recordOf(SettingsStore& store);
[[nodiscard]] DochtmlImageMaps recordOf(CImageMapInterface& maps);
[[nodiscard]] DochtmlModel recordOf(const MMSchema& schema);
[[nodiscard]] DochtmlTraceListener recordOf(TraceListener& listener);
[[nodiscard]] DochtmlExceptionLog recordOf(OrxExceptionLog& log);
[[nodiscard]] DochtmlObserver recordOf(DocumentObserver& observer);

}  // namespace quillmark::replay
