#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "foundation/orx_exception.h"

namespace quillmark::replay {

/// Listens to the exception log: passes on each failure that was caught and, if there is an
/// exception file, every message.
class ExceptionMonitor final : public OrxExceptionLog {
public:
    using Handler = std::function<void(std::string_view)>;

    /// `onFailure` gets the reason of each failure. `onMessage` gets every message of both
    /// categories as it is; it may be empty.
    ExceptionMonitor(Handler onFailure, Handler onMessage);

    [[nodiscard]] bool records(std::string_view category) const override;
    void write(std::string_view message) override;

    /// Failures caught so far.
    [[nodiscard]] std::size_t caught() const noexcept { return caught_; }

private:
    Handler onFailure_;
    Handler onMessage_;
    std::size_t caught_ = 0;
};

}  // namespace quillmark::replay
