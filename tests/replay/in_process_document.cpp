#include "replay/in_process_document.h"

#include <utility>

#include "foundation/orx_exception.h"

namespace quillmark::replay {

InProcessDocument::InProcessDocument(std::unique_ptr<IDocument> document)
    : document_(std::move(document)) {}

int InProcessDocument::idOf(std::string_view name) {
    const Operation* const operation = findOperation(name);
    return operation != nullptr ? operation->dispatchId : 0;
}

InvokeStatus InProcessDocument::invoke(int id, std::span<const Argument> arguments) {
    try {
        return quillmark::invoke(*document_, id, arguments);
    } catch (...) {
        OrxException::logCaught();
    }
    return InvokeStatus::done;
}

}  // namespace quillmark::replay
