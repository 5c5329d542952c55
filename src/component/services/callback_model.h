#pragma once

#include <memory>

#include "dochtml/callbacks.h"
#include "host/metamodel.h"

namespace quillmark {

/// An adapter that implements the metamodel interface with a host's callbacks. It copies the
/// record. The result is null when the record lacks a callback. A failure that the host reports
/// becomes an `OrxException`, which the driver logs.
[[nodiscard]] std::unique_ptr<MMSchema> callbackModel(const DochtmlModel& model);

}  // namespace quillmark
