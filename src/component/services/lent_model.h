#pragma once

#include <memory>

#include "dochtml/callbacks.h"
#include "host/metamodel.h"

namespace quillmark {

/// A host's model behind the metamodel contract; the record is copied. Null when it lacks a
/// callback. A failure that the host reports is thrown as `OrxException`, which the driver logs.
[[nodiscard]] std::unique_ptr<MMSchema> lentModel(const DochtmlModel& model);

}  // namespace quillmark
