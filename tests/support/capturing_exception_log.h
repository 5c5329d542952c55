#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/orx_exception.h"

namespace quillmark {

/// The exception log of the process during its lifetime. It collects the messages.
class CapturingExceptionLog : public OrxExceptionLog {
public:
    enum class Records { everything, throwsOnly, catchesOnly, nothing };

    explicit CapturingExceptionLog(Records records = Records::everything)
        : records_(records), before_(OrxException::setLog(this)) {}
    ~CapturingExceptionLog() override { OrxException::setLog(before_); }
    CapturingExceptionLog(const CapturingExceptionLog&) = delete;
    CapturingExceptionLog& operator=(const CapturingExceptionLog&) = delete;

    bool records(std::string_view category) const override {
        return records_ == Records::everything ||
               (records_ == Records::throwsOnly && category == throwCategory) ||
               (records_ == Records::catchesOnly && category == catchCategory);
    }
    void write(std::string_view message) override {
        const std::lock_guard lock(mutex_);
        messages_.emplace_back(message);
    }

    [[nodiscard]] std::vector<std::string> messages() const {
        const std::lock_guard lock(mutex_);
        return messages_;
    }

private:
    const Records records_;
    OrxExceptionLog* const before_;
    mutable std::mutex mutex_;
    std::vector<std::string> messages_;
};

}  // namespace quillmark
