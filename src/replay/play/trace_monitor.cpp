#include "replay/play/trace_monitor.h"

#include "replay/input/recorded_call.h"
#include "replay/play/line_text.h"

namespace quillmark::replay {

void TraceMonitor::line(int level, std::string_view text) {
    if (text.starts_with("ERR ")) {
        ++warnings_;
    } else if (keepsCalls_ && level == Trace::calls && text.starts_with(callOpening)) {
        calls_.add(withoutLineEnds(text));
    }
}

}  // namespace quillmark::replay
