#pragma once

#include <memory>
#include <string_view>

#include "foundation/orx_string.h"
#include "foundation/process_wide.h"

namespace quillmark {

/// Receives the lines of every trace of the process, in addition to the log files. The calls come
/// on the thread that writes the line.
class TraceListener {
public:
    virtual ~TraceListener() = default;
    /// The highest level of lines that the listener wants.
    [[nodiscard]] virtual int level() const = 0;
    /// One or more lines, as the driver writes them at once. Each ends in a line feed.
    virtual void line(int level, std::string_view text) = 0;
};

/// A log file whose lines have levels. A line is written if its level is not above the level of the
/// trace, which is 0 at first.
///
/// Copies of a trace share its log: what one of them opens or closes is opened or closed for all.
/// But each has its own level, so `setLevel` does not affect the others.
///
///     if (trace.isTrace(Trace::calls)) {
///         trace.write(Trace::calls, "dochtml->insertEndl();\n");
///     }
class Trace {
public:
    /// The levels that the driver uses.
    static constexpr int errors = 1;
    static constexpr int calls = 10;
    static constexpr int reports = 11;

    Trace();
    Trace(const Trace&);
    Trace& operator=(const Trace&);
    ~Trace();

    /// Selects the log file to append to, also for the copies. An empty name stands for
    /// "dochtml.log" in the system's temporary directory. The first line written creates the file.
    /// If it cannot be opened, the trace is silent until the next `open`.
    void open(const OrxString& name);
    /// Closes the log, also for the copies that share it.
    void close();
    void setLevel(int level) noexcept { level_ = level; }
    /// Truncates the log on this process's first use of that name. A log that this process has
    /// already opened is left as it is.
    void purgeBefore(const OrxString& name);

    /// Whether anyone would see a line of that level: the log or the listener.
    [[nodiscard]] bool isTrace(int level) const noexcept {
        return (level <= level_ && hasLog()) || listenerHears(level);
    }
    /// Writes one or more lines, each with its line feed, to the log and the listener if they want
    /// the level. In the log a line feed becomes the system's line end. Nothing is buffered.
    void write(int level, std::string_view text) const;

    /// Installs the listener of the process, null for none, and returns the one before. It is not
    /// owned.
    static TraceListener* setListener(TraceListener* listener) noexcept;

private:
    class Log;
    class Stream;

    static bool listenerHears(int level) noexcept {
        const TraceListener* const listener = listener_.get();
        return listener != nullptr && level <= listener->level();
    }
    [[nodiscard]] bool hasLog() const noexcept;

    static ProcessWide<TraceListener*> listener_;
    std::shared_ptr<Stream> stream_;
    int level_ = 0;
};

}  // namespace quillmark
