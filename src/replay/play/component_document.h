#pragma once

#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "replay/play/late_bound_document.h"

namespace quillmark::replay {

/// A document of a component, called through its dispatch interface only.
class ComponentDocument final : public LateBoundDocument {
public:
    explicit ComponentDocument(ComPointer<IDispatch> document) : document_(std::move(document)) {}

    [[nodiscard]] int idOf(std::string_view name) override;
    InvokeStatus invoke(int id, std::span<const Argument> arguments) override;

private:
    ComPointer<IDispatch> document_;
};

}  // namespace quillmark::replay
