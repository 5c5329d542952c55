#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "driver/boundary/i_document.h"

namespace quillmark {

/// What a parameter of an operation is at the boundary.
enum class ParameterKind { string, shortInteger, longInteger, boolean, outString };

struct Parameter {
    const char* name;
    ParameterKind kind;
};

/// One argument of a late-bound call. An integer argument is accepted by every parameter of an
/// integer or boolean kind that can hold it; a boolean only by a boolean.
using Argument = std::variant<WideText, std::int64_t, bool, std::u16string*>;

enum class InvokeStatus { done, unknownOperation, wrongArgumentCount, wrongArgumentKind };

/// One row of the table: everything a late-bound caller must know of an operation.
struct Operation {
    int dispatchId;
    const char* name;
    std::span<const Parameter> parameters;
    /// Calls the operation with arguments that `invoke` has checked.
    DocResult (*call)(IDocument& document, std::span<const Argument> arguments);
};

inline constexpr int operationCount = 42;

/// The operations in the order of their dispatch identifiers, 1 to 42.
[[nodiscard]] std::span<const Operation> operations() noexcept;

/// The row of that name (compared exactly), or null.
[[nodiscard]] const Operation* findOperation(std::string_view name) noexcept;
/// The row of that dispatch identifier, or null.
[[nodiscard]] const Operation* findOperation(int dispatchId) noexcept;

/// Checks number and kinds of the arguments and, when they fit, makes the call. `badArgument`,
/// when given, gets the 0-based position of the first argument of a wrong kind.
[[nodiscard]] InvokeStatus invoke(IDocument& document, int dispatchId,
                                  std::span<const Argument> arguments,
                                  std::size_t* badArgument = nullptr);

}  // namespace quillmark
