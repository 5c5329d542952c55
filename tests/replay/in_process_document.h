#pragma once

#include <memory>

#include "driver/boundary/i_document.h"
#include "replay/play/late_bound_document.h"

namespace quillmark::replay {

/// Calls a document of this process through the table of operations. Catches all exceptions and
/// logs them, as the boundary of a component does.
class InProcessDocument final : public LateBoundDocument {
public:
    explicit InProcessDocument(std::unique_ptr<IDocument> document);

    [[nodiscard]] int idOf(std::string_view name) override;
    InvokeStatus invoke(int id, std::span<const Argument> arguments) override;

private:
    std::unique_ptr<IDocument> document_;
};

}  // namespace quillmark::replay
