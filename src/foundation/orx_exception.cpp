#include "foundation/orx_exception.h"

#include <new>

#include "foundation/module_lifetime.h"
#include "foundation/process_wide.h"

namespace quillmark {

namespace {

class SilentLog final : public OrxExceptionLog {
public:
    [[nodiscard]] bool records(std::string_view /*category*/) const override { return false; }
    void write(std::string_view /*message*/) override {}
};

SilentLog& silentLog() noexcept {
    static ModuleLifetime<SilentLog> log;
    return *log;
}

constinit ProcessWide<OrxExceptionLog*> installedLog;

void writeToLog(const char* category, std::string_view opening, std::string_view reason) {
    OrxExceptionLog* const log = OrxException::getLog();
    if (log->records(category)) {
        log->write((opening + OrxString(reason)).append('\n'));
    }
}

/// Builds no message, since there is no memory for one.
void logOutOfMemory() noexcept {
    try {
        OrxExceptionLog* const log = OrxException::getLog();
        if (log->records(OrxExceptionLog::catchCategory)) {
            log->write("Exception catch: out of memory\n");
        }
    } catch (...) {
        // As in `logCatch`.
    }
}

}  // namespace

OrxExceptionLog* OrxException::getLog() noexcept {
    OrxExceptionLog* const log = installedLog.get();
    return log != nullptr ? log : &silentLog();
}

OrxExceptionLog* OrxException::setLog(OrxExceptionLog* log) noexcept {
    return installedLog.exchange(log);
}

void OrxException::raise(const OrxString& reason) {
    writeToLog(OrxExceptionLog::throwCategory, "Exception throw: ", reason);
    throw OrxException(reason);
}

void OrxException::logCatch(std::string_view reason) noexcept {
    try {
        writeToLog(OrxExceptionLog::catchCategory, "Exception catch: ", reason);
    } catch (const std::bad_alloc&) {
        logOutOfMemory();
    } catch (...) {
        // There is nowhere left to report a failure of the log itself. The document goes on.
    }
}

void OrxException::logCaught() noexcept {
    try {
        throw;
    } catch (const OrxException& exception) {
        logCatch(exception.reasonText());
    } catch (const std::bad_alloc&) {
        logOutOfMemory();
    } catch (const std::exception& exception) {
        logCatch(exception.what());
    } catch (...) {
        logCatch("unknown exception");
    }
}

}  // namespace quillmark
