#pragma once

#include <exception>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Where exceptions are told: process-wide, asked before a throw and after a catch.
///
/// A host installs its own with `OrxException::setLog`. It may be called from several threads at
/// once (one an apartment), so an implementation guards what it shares.
class OrxExceptionLog {
public:
    /// The two categories that the driver asks for.
    static constexpr const char* throwCategory = "Throw";
    static constexpr const char* catchCategory = "Catch";

    virtual ~OrxExceptionLog() = default;
    /// Whether messages of this category are wanted.
    [[nodiscard]] virtual bool records(std::string_view category) const = 0;
    /// Takes one message, its line end included.
    virtual void write(std::string_view message) = 0;
};

/// The one exception type of the driver; it carries a reason in words.
///
/// Throw it with `raise`, which writes to the log first. Code that catches one and does not pass it
/// on calls `logCaught`.
class OrxException : public std::exception {
public:
    explicit OrxException(OrxString reason) : reason_(std::move(reason)) {}

    [[nodiscard]] const OrxString& reasonText() const noexcept { return reason_; }
    [[nodiscard]] const char* what() const noexcept override { return reason_.data(); }

    /// The process-wide log; never null. The default records nothing.
    [[nodiscard]] static OrxExceptionLog* getLog() noexcept;
    /// Installs a log, which stays the caller's and must outlive its use; null brings the default
    /// back. Returns the log that was installed before, null for the default.
    static OrxExceptionLog* setLog(OrxExceptionLog* log) noexcept;

    /// Writes "Exception throw: " + reason to the log when it records "Throw", then throws.
    [[noreturn]] static void raise(const OrxString& reason);
    /// Writes "Exception catch: " + reason to the log when it records "Catch".
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
