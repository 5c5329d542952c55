#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "driver/boundary/i_document.h"

namespace quillmark {

/// The kind of a parameter of an operation.
enum class ParameterKind { string, shortInteger, longInteger, boolean, outString };

struct Parameter {
    const char* name;
    ParameterKind kind;
};

/// One argument of a late-bound call. A parameter of an integer kind takes any integer that fits;
/// a boolean parameter takes an integer or a boolean.
using Argument = std::variant<WideText, std::int64_t, bool, std::u16string*>;

enum class InvokeStatus { done, unknownOperation, wrongArgumentCount, wrongArgumentKind };

/// One row of the table: everything that a late-bound caller needs to know about an operation.
struct Operation {
    int dispatchId;
    const char* name;
    std::span<const Parameter> parameters;
    /// The number of arguments that a caller gives a value: all but those that receive a text.
    std::size_t givenCount;
    /// Calls the operation with arguments that `invoke` has checked.
    DocResult (*call)(IDocument& document, std::span<const Argument> arguments);
};

inline constexpr int operationCount = 42;

/// The operations in the order of their dispatch identifiers, 1 to 42.
[[nodiscard]] std::span<const Operation> operations() noexcept;

/// The operation with that name, compared exactly; null when there is none.
[[nodiscard]] const Operation* findOperation(std::string_view name) noexcept;
/// The operation with that dispatch identifier; null when there is none.
[[nodiscard]] const Operation* findOperation(int dispatchId) noexcept;

/// Checks the number and the kinds of the arguments and then makes the call. On
/// `wrongArgumentKind`, `*badArgument` (if given) is the 0-based position of the first bad one.
[[nodiscard]] InvokeStatus invoke(IDocument& document, int dispatchId,
                                  std::span<const Argument> arguments,
                                  std::size_t* badArgument = nullptr);

}  // namespace quillmark
