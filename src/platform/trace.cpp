#include "platform/trace.h"

#include <array>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>

#include "foundation/module_lifetime.h"
#include "foundation/orx_exception.h"
#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/line_end.h"
#include "platform/system_facts.h"
#include "platform/text_encoding.h"

namespace quillmark {

constinit ProcessWide<TraceListener*> Trace::listener_;

/// A log file, shared by every trace of the process that has it open.
class Trace::Log {
public:
    /// The name is in the encoding in force; the log outlives that.
    explicit Log(OrxString name) : name_(std::move(name)), encoding_(TextEncoding::current()) {}
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    ~Log() {
        try {
            FileFailure::forget();
            if (file_ != nullptr && !file_->close()) {
                reportFailure();
            }
        } catch (...) {
            OrxException::logCaught();
        }
    }

    [[nodiscard]] bool failed() const noexcept { return failed_.load(std::memory_order_relaxed); }
    /// After a new `open` a log that has failed is tried again.
    void forgiveFailure() noexcept { failed_.store(false, std::memory_order_relaxed); }

    /// If the disk does not take a line, the log becomes silent and the failure goes to the
    /// exception log, once. The document goes on.
    void write(std::string_view text) {
        if (failsNow(text)) {
            reportFailure();
        }
    }

private:
    void reportFailure() const {
        // The log itself cannot take the reason, but a listener can.
        failure_lines::writeReason(Trace());
        OrxException::logCatch("Error writing to file: " +
                               TextEncoding::current().recoded(name_, encoding_));
    }

    [[nodiscard]] bool failsNow(std::string_view text) {
        const std::lock_guard lock(mutex_);
        if (failed()) {
            return false;
        }
        FileFailure::forget();
        if (file_ == nullptr) {
            const TextEncoding::Scope scope(encoding_);
            file_ = FileSystem::current().openForAppending(name_);
        }
        const bool done =
            file_ != nullptr && (systemLineEnd() == "\n" ? put(text) : put(withLineEnds(text)));
        if (!done) {
            file_ = nullptr;
            failed_.store(true, std::memory_order_relaxed);
        }
        return !done;
    }

    [[nodiscard]] bool put(std::string_view text) {
        const std::array<std::string_view, 1> pieces = {text};
        return file_->write(pieces);
    }

    static OrxString withLineEnds(std::string_view text) {
        return OrxString(text).replaceStr("\n", systemLineEnd());
    }

    const OrxString name_;
    const TextEncoding& encoding_;
    std::mutex mutex_;
    std::unique_ptr<OutputFile> file_;
    std::atomic<bool> failed_{false};
};

/// What a trace and its copies share: the log that any of them opened last. Two documents that
/// trace into the same log have one stream each.
class Trace::Stream {
public:
    [[nodiscard]] bool isOpen() const noexcept { return log_ != nullptr && !log_->failed(); }
    void open(std::shared_ptr<Log> log) noexcept { log_ = std::move(log); }
    void close() noexcept { log_ = nullptr; }
    void write(std::string_view text) { log_->write(text); }

private:
    std::shared_ptr<Log> log_;
};

namespace {

/// The absolute name of a log. It stays the same when the current directory changes.
OrxString logFileName(const OrxString& name) {
    const OrxString dir =
        name.isEmpty() ? system_facts::temporaryDirectory() : SysDirectory::getCurrentDir();
    return SysDirectory::getSpecificPath(dir, name.isEmpty() ? OrxString("dochtml.log") : name);
}

/// Documents in different encodings spell the same name differently.
OrxString logKey(const OrxString& fileName) {
    OrxString key = TextEncoding::current().toUtf8(fileName);
    return system_facts::namesIgnoreCase() ? key.toLower() : key;
}

/// All logs of the process, by key. `T` is the private log class of `Trace`.
template <typename T>
class Registry {
public:
    std::shared_ptr<T> take(const OrxString& fileName) {
        const std::lock_guard lock(mutex_);
        const OrxString key = logKey(fileName);
        usedKeys_.insert(key);
        std::weak_ptr<T>& slot = logs_[key];
        std::shared_ptr<T> log = slot.lock();
        if (log == nullptr) {
            log = std::make_shared<T>(fileName);
            slot = log;
        }
        return log;
    }

    void purgeOnce(const OrxString& fileName) {
        const std::lock_guard lock(mutex_);
        FileSystem& files = FileSystem::current();
        const auto [key, isFirst] = usedKeys_.insert(logKey(fileName));
        try {
            if (isFirst && files.fileExists(fileName)) {
                // Truncated and not deleted, because another process may be writing to it.
                static_cast<void>(files.openForWriting(fileName));
            }
        } catch (...) {
            usedKeys_.erase(key);
            throw;
        }
    }

private:
    std::mutex mutex_;
    std::map<OrxString, std::weak_ptr<T>> logs_;
    /// The keys of the logs that this process has truncated or opened. Their content is its own.
    std::set<OrxString> usedKeys_;
};

template <typename T>
Registry<T>& registry() {
    static ModuleLifetime<Registry<T>> instance;
    return *instance;
}

}  // namespace

Trace::Trace() : stream_(std::make_shared<Stream>()) {}
Trace::Trace(const Trace&) = default;
Trace& Trace::operator=(const Trace&) = default;
Trace::~Trace() = default;

void Trace::open(const OrxString& name) {
    std::shared_ptr<Log> log = registry<Log>().take(logFileName(name));
    log->forgiveFailure();
    stream_->open(std::move(log));
}

void Trace::close() {
    stream_->close();
}

void Trace::purgeBefore(const OrxString& name) {
    registry<Log>().purgeOnce(logFileName(name));
}

bool Trace::hasLog() const noexcept {
    return stream_->isOpen();
}

void Trace::write(int level, std::string_view text) const {
    if (level <= level_ && hasLog()) {
        stream_->write(text);
    }
    TraceListener* const listener = listener_.get();
    if (listener != nullptr && level <= listener->level()) {
        listener->line(level, text);
    }
}

TraceListener* Trace::setListener(TraceListener* listener) noexcept {
    return listener_.exchange(listener);
}

}  // namespace quillmark
