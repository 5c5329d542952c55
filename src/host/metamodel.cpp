#include "host/metamodel.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<const MMSchema*> installed{nullptr};

}  // namespace

const MMSchema* MMSchema::getSchema() noexcept {
    return installed.load(std::memory_order_acquire);
}

const MMSchema* MMSchema::setSchema(const MMSchema* schema) noexcept {
    return installed.exchange(schema, std::memory_order_acq_rel);
}

}  // namespace quillmark
