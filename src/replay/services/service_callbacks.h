#pragma once

#include "dochtml/callbacks.h"
#include "foundation/orx_exception.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "platform/trace.h"
#include "settings/settings_store.h"

namespace quillmark::replay {

/// Convert services of this process into the tables of callbacks that a component accepts. The
/// caller keeps the service alive while the table is used. The callbacks do not throw.
/// They run while a document is played, whose encoding is in force.

[[nodiscard]] DochtmlSettingsStore callbacksOf(SettingsStore& store);
[[nodiscard]] DochtmlImageMaps callbacksOf(CImageMapInterface& maps);
[[nodiscard]] DochtmlModel callbacksOf(const MMSchema& schema);
[[nodiscard]] DochtmlTraceListener callbacksOf(TraceListener& listener);
[[nodiscard]] DochtmlExceptionLog callbacksOf(OrxExceptionLog& log);
[[nodiscard]] DochtmlObserver callbacksOf(DocumentObserver& observer);

}  // namespace quillmark::replay
