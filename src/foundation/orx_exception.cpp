#include "foundation/orx_exception.h"

#include <atomic>

#include "foundation/lasting.h"

namespace quillmark {

namespace {

class SilentLog final : public OrxExceptionLog {
public:
    [[nodiscard]] bool records(std::string_view /*category*/) const override { return false; }
    void write(std::string_view /*message*/) override {}
};

SilentLog& silentLog() noexcept {
    static Lasting<SilentLog> log;
    return *log;
}

std::atomic<OrxExceptionLog*>& installedLog() noexcept {
    static std::atomic<OrxExceptionLog*> log{nullptr};
    return log;
}

void tell(const char* category, std::string_view opening, std::string_view reason) {
    OrxExceptionLog* const log = OrxException::getLog();
    if (log->records(category)) {
        log->write((opening + OrxString(reason)).append('\n'));
    }
}

}  // namespace

OrxExceptionLog* OrxException::getLog() noexcept {
    OrxExceptionLog* const log = installedLog().load(std::memory_order_acquire);
    return log != nullptr ? log : &silentLog();
}

OrxExceptionLog* OrxException::setLog(OrxExceptionLog* log) noexcept {
    return installedLog().exchange(log, std::memory_order_acq_rel);
}

void OrxException::raise(const OrxString& reason) {
    tell(OrxExceptionLog::throwCategory, "Exception throw: ", reason);
    throw OrxException(reason);
}

void OrxException::logCatch(std::string_view reason) noexcept {
    try {
        tell(OrxExceptionLog::catchCategory, "Exception catch: ", reason);
    } catch (...) {
        // The log is the last place to tell anything; when it fails too, the document goes on.
    }
}

}  // namespace quillmark
