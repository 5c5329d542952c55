#pragma once

#include <exception>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// The log of exceptions, one for the whole process. The driver uses it before a throw and after a
/// catch.
///
/// A host installs its own with `OrxException::setLog`. Several threads may call it at once, so an
/// implementation must guard what they share. The driver ignores exceptions that the log throws
/// while a catch is logged.
class OrxExceptionLog {
public:
    /// The two categories that the driver uses.
    static constexpr const char* throwCategory = "Throw";
    static constexpr const char* catchCategory = "Catch";

    virtual ~OrxExceptionLog() = default;
    /// Whether the log wants messages of this category.
    [[nodiscard]] virtual bool records(std::string_view category) const = 0;
    /// Records one message, which ends in a line feed.
    virtual void write(std::string_view message) = 0;
};

/// The only exception type that the driver throws. It carries a reason in words.
///
/// Throw it with `raise`, which writes to the log first. Code that catches one and does not pass it
/// on calls `logCaught`.
class OrxException : public std::exception {
public:
    explicit OrxException(OrxString reason) : reason_(std::move(reason)) {}

    [[nodiscard]] const OrxString& reasonText() const noexcept { return reason_; }
    [[nodiscard]] const char* what() const noexcept override { return reason_.data(); }

    /// The log of the process, never null. The default one records nothing.
    [[nodiscard]] static OrxExceptionLog* getLog() noexcept;
    /// Installs a log and returns the one installed before. Null stands for the default. The log is
    /// not owned and must stay alive while it is installed.
    static OrxExceptionLog* setLog(OrxExceptionLog* log) noexcept;

    /// Writes "Exception throw: " and the reason to the log if it records "Throw", then throws.
    [[noreturn]] static void raise(const OrxString& reason);
    /// Writes "Exception catch: " and the reason to the log if it records "Catch".
    static void logCatch(std::string_view reason) noexcept;
    /// Logs the exception being handled as `logCatch` does. Call it in a `catch` block that ends
    /// the exception. One without a reason is logged as "unknown exception".
    ///
    ///     try {
    ///         callTheHost();
    ///     } catch (...) {
    ///         OrxException::logCaught();
    ///     }
    static void logCaught() noexcept;

private:
    OrxString reason_;
};

}  // namespace quillmark
