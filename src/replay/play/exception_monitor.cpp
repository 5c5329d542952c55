#include "replay/play/exception_monitor.h"

#include <utility>

#include "replay/play/line_text.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view catchOpening = "Exception catch: ";

}  // namespace

ExceptionMonitor::ExceptionMonitor(Handler onFailure, Handler onMessage)
    : onFailure_(std::move(onFailure)), onMessage_(std::move(onMessage)) {}

bool ExceptionMonitor::records(std::string_view category) const {
    return category == catchCategory || (category == throwCategory && onMessage_);
}

void ExceptionMonitor::write(std::string_view message) {
    // Counted first: the handlers may run out of memory.
    const bool isFailure = message.starts_with(catchOpening);
    caught_ += isFailure ? 1 : 0;
    if (onMessage_) {
        onMessage_(message);
    }
    if (isFailure) {
        onFailure_(withoutLineEnds(message.substr(catchOpening.size())));
    }
}

}  // namespace quillmark::replay
