#include "host/metamodel.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<const MMSchema*> installedSchema;

}  // namespace

const MMSchema* MMSchema::getSchema() noexcept {
    return installedSchema.get();
}

const MMSchema* MMSchema::setSchema(const MMSchema* schema) noexcept {
    return installedSchema.exchange(schema);
}

}  // namespace quillmark
