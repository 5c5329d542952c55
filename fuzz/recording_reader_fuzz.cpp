#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "replay/input/recording_reader.h"
#include "support/recording_document.h"

/// Whatever stands in a recording, a call that is handed out fits its operation, its line is that
/// of a call, and lines only ever go forward.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    std::istringstream stream(std::string(data, data + size));
    replay::InputBuffer input(stream);
    static_cast<void>(replay::detectFormat(input));
    replay::RecordingReader reader(input);
    testing::RecordingDocument document;
    replay::Call call;
    std::size_t line = 0;
    auto result = replay::ReadResult::end;
    while ((result = reader.next(call)) == replay::ReadResult::call) {
        const bool whole = call.recorded.starts_with("dochtml->") && call.recorded.ends_with(");");
        if (!whole || call.line <= line ||
            invoke(document, call.operation->dispatchId, call.given()) != InvokeStatus::done) {
            __builtin_trap();
        }
        line = call.line;
    }
    if (result == replay::ReadResult::malformed &&
        (reader.problem().empty() || reader.line() == 0)) {
        __builtin_trap();
    }
    return 0;
}
