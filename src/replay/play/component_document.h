#pragma once

#include <array>

#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "replay/play/late_bound_document.h"
#include "replay/play/reused_texts.h"

namespace quillmark::replay {

/// The texts of a call, by the position of the argument. No operation has more arguments.
using ArgumentTexts = std::array<ReusedTexts, 4>;

/// A document of a component, called through its dispatch interface only.
class ComponentDocument final : public LateBoundDocument {
public:
    explicit ComponentDocument(ComPointer<IDispatch> document) : document_(std::move(document)) {}

    [[nodiscard]] int idOf(std::string_view name) override;
    InvokeStatus invoke(int id, std::span<const Argument> arguments) override;

private:
    ComPointer<IDispatch> document_;
    ArgumentTexts texts_;
};

}  // namespace quillmark::replay
