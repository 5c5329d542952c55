#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "driver/boundary/operation_table.h"

namespace quillmark::replay {

/// A document as a host without the driver's headers reaches it: a name leads to a dispatch
/// identifier, an identifier to the call. Letting go of it ends the document as a host's release
/// does.
class LateBoundDocument {
public:
    LateBoundDocument() = default;
    LateBoundDocument(const LateBoundDocument&) = delete;
    LateBoundDocument& operator=(const LateBoundDocument&) = delete;
    virtual ~LateBoundDocument() = default;

    /// The dispatch identifier of an operation, 0 when the document does not know it.
    [[nodiscard]] virtual int idOf(std::string_view name) = 0;
    /// Makes the call. Nothing is thrown: what fails behind the boundary is told in the exception
    /// log.
    virtual InvokeStatus invoke(int id, std::span<const Argument> arguments) = 0;
};

/// Makes a fresh object.
using DocumentMaker = std::function<std::unique_ptr<LateBoundDocument>()>;

}  // namespace quillmark::replay
