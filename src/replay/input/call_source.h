#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "driver/boundary/operation_table.h"

namespace quillmark::replay {

/// One call as an input holds it. Its texts belong to the source and live until the next call is
/// read.
struct Call {
    static constexpr std::size_t maxArguments = 4;

    /// Null for the tool's own `new`: a fresh object.
    const Operation* operation = nullptr;
    std::array<Argument, maxArguments> arguments;
    /// Arguments given; one that the operation answers with is not among them.
    std::size_t argumentCount = 0;
    /// Where it begins, counted from 1.
    std::size_t line = 0;
    /// In a recording, the call line without its line end.
    std::string_view recorded;

    [[nodiscard]] std::span<const Argument> given() const noexcept {
        return std::span(arguments).first(argumentCount);
    }
};

enum class ReadResult { call, end, malformed };

/// What `malformed` stands for when the input ended too early.
inline constexpr const char* unreadable = "the input cannot be read to its end";

/// Where calls come from, one after the other.
class CallSource {
public:
    CallSource() = default;
    CallSource(const CallSource&) = delete;
    CallSource& operator=(const CallSource&) = delete;
    virtual ~CallSource() = default;

    /// Reads the next call. After `end` and `malformed` nothing more may be asked for.
    [[nodiscard]] virtual ReadResult next(Call& call) = 0;
    /// What is wrong, in words, and in which line, after `malformed`.
    [[nodiscard]] virtual const std::string& problem() const noexcept = 0;
    [[nodiscard]] virtual std::size_t line() const noexcept = 0;
};

}  // namespace quillmark::replay
