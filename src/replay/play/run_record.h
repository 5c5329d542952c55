#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "foundation/orx_exception.h"
#include "foundation/packed_strings.h"
#include "host/document_observer.h"
#include "platform/trace.h"

namespace quillmark::replay {

/// Hears the driver's trace: counts what it warns of and, while a recording is replayed, keeps
/// the call lines that it writes.
class HeardTrace final : public TraceListener {
public:
    /// Call lines cost the driver time, so they are asked for only when somebody compares them.
    explicit HeardTrace(bool keepsCalls) : keepsCalls_(keepsCalls) {}

    [[nodiscard]] int level() const override { return keepsCalls_ ? Trace::calls : Trace::errors; }
    void line(int level, std::string_view text) override;

    /// The call lines since `forgetCalls`, without their line ends.
    [[nodiscard]] const PackedStrings& calls() const noexcept { return calls_; }
    void forgetCalls() noexcept { calls_.clear(); }
    [[nodiscard]] std::size_t warnings() const noexcept { return warnings_; }

private:
    bool keepsCalls_;
    PackedStrings calls_;
    std::size_t warnings_ = 0;
};

/// Hears the exception log: each failure that was caught is handed on, and everything, when there
/// is a file for it, goes there too.
class HeardExceptions final : public OrxExceptionLog {
public:
    using Teller = std::function<void(std::string_view)>;

    /// `tellReason` gets the reason of each failure. `writeDown`, which may be empty, gets every
    /// message of both categories as it is.
    HeardExceptions(Teller tellReason, Teller writeDown);

    [[nodiscard]] bool records(std::string_view category) const override;
    void write(std::string_view message) override;

    /// Failures caught so far.
    [[nodiscard]] std::size_t caught() const noexcept { return caught_; }

private:
    Teller tellReason_;
    Teller writeDown_;
    std::size_t caught_ = 0;
};

/// Counts what became of the documents.
class RunCounts final : public DocumentObserver {
public:
    void pageWritten(const OrxString& /*fileName*/) override { ++pages; }
    void fileCopied(const OrxString& /*target*/) override { ++files; }
    void contentsEntryAdded() override { ++contentsEntries; }
    void unresolvedReferences(const OrxString& /*fileName*/, std::size_t count) override {
        unresolved += count;
    }

    std::size_t pages = 0;
    std::size_t files = 0;
    std::size_t contentsEntries = 0;
    std::size_t unresolved = 0;
};

}  // namespace quillmark::replay
