#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/packed_strings.h"
#include "platform/trace.h"

namespace quillmark::replay {

/// Listens to the driver's trace: counts its warnings and, while a recording is replayed, keeps
/// the call lines.
class TraceMonitor final : public TraceListener {
public:
    /// Call lines cost the driver time. Pass true for `keepsCalls` only if they are compared.
    explicit TraceMonitor(bool keepsCalls) : keepsCalls_(keepsCalls) {}

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

}  // namespace quillmark::replay
