#pragma once

#include <memory>
#include <string_view>

#include "foundation/orx_string.h"
#include "foundation/process_wide.h"

namespace quillmark {

/// Hears the lines of every trace of the process, besides the log. The replay tool is one. It is
/// called on the thread that writes the line.
class TraceListener {
public:
    virtual ~TraceListener() = default;
    /// The deepest level that it wants.
    [[nodiscard]] virtual int level() const = 0;
    /// One line (or several, as the driver writes them), line end included.
    virtual void line(int level, std::string_view text) = 0;
};

/// A leveled log in a file. Copies share its stream: what one of them opens or closes is opened or
/// closed for all. But each keeps its own level: a copy taken before a change of level still has
/// the old one.
///
///     if (trace.isTrace(Trace::calls)) {
///         trace.write(Trace::calls, "dochtml->insertEndl();\n");
///     }
class Trace {
public:
    static constexpr int errors = 1;
    static constexpr int calls = 10;
    static constexpr int reports = 11;

    Trace();
    Trace(const Trace&);
    Trace& operator=(const Trace&);
    ~Trace();

    /// Takes up the log of that name, for appending, for the copies that share the stream too; an
    /// empty name means "dochtml.log" in the system's temporary directory. The file is made by the
    /// first line written to it; one that cannot be opened leaves the trace silent until the next
    /// `open`.
    void open(const OrxString& name);
    /// Closes the stream, for the copies that share it too.
    void close();
    void setLevel(int level) noexcept { level_ = level; }
    /// Drops what an earlier process left in the log of that name, once a process and name. A
    /// log that this process has written to already is left as it is.
    void purgeBefore(const OrxString& name);

    /// Whether a line of that level would be seen by anybody.
    [[nodiscard]] bool isTrace(int level) const noexcept {
        return (level <= level_ && hasLog()) || listenerHears(level);
    }
    /// Writes a text, line ends included, for those that want its level. A line feed becomes the
    /// system's line end in the log. The log is up to date with every call.
    void write(int level, std::string_view text) const;

    /// Installs the listener (it stays the caller's), null for none; returns the one before.
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
