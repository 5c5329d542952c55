#include "host/metamodel.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<const MMSchema*> installed;

}  // namespace

const MMSchema* MMSchema::getSchema() noexcept {
    return installed.get();
}

const MMSchema* MMSchema::setSchema(const MMSchema* schema) noexcept {
    return installed.exchange(schema);
}

}  // namespace quillmark
