#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "driver/boundary/operation_table.h"

namespace quillmark::replay {

/// A document as a host calls it that does not have the driver's headers: it looks up the dispatch
/// identifier of a name and calls that. Destroying it has the same effect as a host's release.
class LateBoundDocument {
public:
    LateBoundDocument() = default;
    LateBoundDocument(const LateBoundDocument&) = delete;
    LateBoundDocument& operator=(const LateBoundDocument&) = delete;
    virtual ~LateBoundDocument() = default;

    /// The dispatch identifier of an operation, or 0 if the document does not have it.
    [[nodiscard]] virtual int idOf(std::string_view name) = 0;
    /// Makes the call. Does not throw: the document writes failures to the exception log.
    virtual InvokeStatus invoke(int id, std::span<const Argument> arguments) = 0;
};

/// Creates a new object.
using DocumentMaker = std::function<std::unique_ptr<LateBoundDocument>()>;

}  // namespace quillmark::replay
