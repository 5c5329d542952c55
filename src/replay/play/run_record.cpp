#include "replay/play/run_record.h"

#include <utility>

#include "replay/input/recorded_call.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view catchOpening = "Exception catch: ";

std::string_view withoutLineEnds(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

void HeardTrace::line(int level, std::string_view text) {
    if (text.starts_with("ERR ")) {
        ++warnings_;
    } else if (keepsCalls_ && level == Trace::calls && text.starts_with(callOpening)) {
        calls_.add(withoutLineEnds(text));
    }
}

HeardExceptions::HeardExceptions(Teller tellReason, Teller writeDown)
    : tellReason_(std::move(tellReason)), writeDown_(std::move(writeDown)) {}

bool HeardExceptions::records(std::string_view category) const {
    return category == catchCategory || (category == throwCategory && writeDown_);
}

void HeardExceptions::write(std::string_view message) {
    if (writeDown_) {
        writeDown_(message);
    }
    if (message.starts_with(catchOpening)) {
        ++caught_;
        tellReason_(withoutLineEnds(message.substr(catchOpening.size())));
    }
}

}  // namespace quillmark::replay
