#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "driver/boundary/operation_table.h"

namespace quillmark::replay {

/// One call of an input. Its texts belong to the source and are valid until the next call is read.
struct Call {
    static constexpr std::size_t maxArguments = 4;

    /// Null for `new`, with which the input asks the tool for a new object.
    const Operation* operation = nullptr;
    std::array<Argument, maxArguments> arguments;
    /// The number of arguments given, without an output argument.
    std::size_t argumentCount = 0;
    /// True only if every text is ASCII, which every encoding holds. A source need not find out.
    bool isAscii = false;
    /// The line in which the call begins, counted from 1.
    std::size_t line = 0;
    /// In a recording, the call line without its line end.
    std::string_view recorded;

    [[nodiscard]] std::span<const Argument> given() const noexcept {
        return std::span(arguments).first(argumentCount);
    }
};

enum class ReadResult { call, end, malformed };

/// The problem after `malformed` if the input could not be read to its end.
inline constexpr const char* unreadable = "the input cannot be read to its end";

/// A source of calls, read one after the other.
class CallSource {
public:
    CallSource() = default;
    CallSource(const CallSource&) = delete;
    CallSource& operator=(const CallSource&) = delete;
    virtual ~CallSource() = default;

    /// Reads the next call. Must not be called again after `end` or `malformed`.
    [[nodiscard]] virtual ReadResult next(Call& call) = 0;
    /// After `malformed`, what is wrong and in which line.
    [[nodiscard]] virtual const std::string& problem() const noexcept = 0;
    [[nodiscard]] virtual std::size_t line() const noexcept = 0;
};

}  // namespace quillmark::replay
