#pragma once

#include <mutex>
#include <string>
#include <string_view>

#include "platform/trace.h"

namespace quillmark {

/// Collects the lines of all traces of the process during its lifetime.
class CapturingTrace : public TraceListener {
public:
    explicit CapturingTrace(int level = Trace::reports)
        : level_(level), before_(Trace::setListener(this)) {}
    ~CapturingTrace() override { Trace::setListener(before_); }
    CapturingTrace(const CapturingTrace&) = delete;
    CapturingTrace& operator=(const CapturingTrace&) = delete;

    int level() const override { return level_; }
    void line(int /*level*/, std::string_view text) override {
        const std::lock_guard lock(mutex_);
        text_.append(text);
    }

    /// All lines, one after the other.
    [[nodiscard]] std::string text() const {
        const std::lock_guard lock(mutex_);
        return text_;
    }
    void clear() {
        const std::lock_guard lock(mutex_);
        text_.clear();
    }

private:
    const int level_;
    TraceListener* const before_;
    mutable std::mutex mutex_;
    std::string text_;
};

}  // namespace quillmark
