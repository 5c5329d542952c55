#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "foundation/packed_strings.h"
#include "platform/trace.h"

namespace quillmark::replay {

/// Listens to the driver's trace: passes on its failures, warnings and reports and, while a
/// recording is replayed, keeps the call lines.
class TraceMonitor final : public TraceListener {
public:
    /// What the monitor passes on, without line ends; each may be empty.
    struct Handlers {
        /// Something was lost: what the driver wrote after "ERR ", and the system's reason, if it
        /// gave one.
        std::function<void(std::string_view failure, std::string_view reason)> failed;
        /// Any other line that begins with "ERR ", without that.
        std::function<void(std::string_view warning)> warned;
        /// The unresolved references of a page, with the lines that name them.
        std::function<void(std::string_view report)> unresolved;
    };

    /// Call lines cost the driver time. Pass true for `keepsCalls` only if they are compared.
    explicit TraceMonitor(bool keepsCalls, Handlers handlers = {})
        : keepsCalls_(keepsCalls), handlers_(std::move(handlers)) {}

    [[nodiscard]] int level() const override;
    void line(int level, std::string_view text) override;

    /// Reports cost the driver time too, so they are off at first.
    void hearReports(bool hears) noexcept { hearsReports_ = hears; }
    [[nodiscard]] bool hearsReports() const noexcept { return hearsReports_; }

    /// The call lines since `forgetCalls`, without their line ends.
    [[nodiscard]] const PackedStrings& calls() const noexcept { return calls_; }
    void forgetCalls() noexcept { calls_.clear(); }
    [[nodiscard]] std::size_t warnings() const noexcept { return warnings_; }
    /// The system's reason for the failure that the driver reports next, if it gave one.
    [[nodiscard]] std::string takeReason();

private:
    void errorLine(std::string_view text);

    bool keepsCalls_;
    Handlers handlers_;
    bool hearsReports_ = false;
    PackedStrings calls_;
    std::string reason_;
    std::size_t warnings_ = 0;
};

}  // namespace quillmark::replay
