#include "replay/play/trace_monitor.h"

#include <utility>

#include "platform/files/failure_lines.h"
#include "replay/input/recorded_call.h"
#include "replay/play/line_text.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view errorOpening = "ERR ";
constexpr std::string_view copyOpening = "Could not copy file ";
constexpr std::string_view unresolvedOpening = "Unresolved references on page ";

}  // namespace

int TraceMonitor::level() const {
    if (hearsReports_) {
        return Trace::reports;
    }
    return keepsCalls_ ? Trace::calls : Trace::errors;
}

void TraceMonitor::line(int level, std::string_view text) {
    if (text.starts_with(failure_lines::reasonOpening)) {
        reason_ = withoutLineEnds(text.substr(failure_lines::reasonOpening.size()));
    } else if (text.starts_with(errorOpening)) {
        errorLine(withoutLineEnds(text.substr(errorOpening.size())));
    } else if (level == Trace::reports) {
        if (text.starts_with(unresolvedOpening) && handlers_.unresolved) {
            handlers_.unresolved(withoutLineEnds(text));
        }
    } else if (keepsCalls_ && level == Trace::calls && text.starts_with(callOpening)) {
        calls_.add(withoutLineEnds(text));
    }
}

void TraceMonitor::errorLine(std::string_view text) {
    const std::string reason = takeReason();
    if (!reason.empty() || text.starts_with(copyOpening)) {
        if (handlers_.failed) {
            handlers_.failed(text, reason);
        }
        return;
    }
    ++warnings_;
    if (handlers_.warned) {
        handlers_.warned(text);
    }
}

std::string TraceMonitor::takeReason() {
    return std::exchange(reason_, {});
}

}  // namespace quillmark::replay
