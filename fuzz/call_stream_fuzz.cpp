#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "replay/input/call_stream_reader.h"
#include "support/recording_document.h"

/// Whatever stands in a call stream, a call that is handed out fits its operation.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    std::istringstream stream(std::string(data, data + size));
    replay::InputBuffer input(stream);
    static_cast<void>(replay::detectFormat(input));
    replay::CallStreamReader reader(input);
    testing::RecordingDocument document;
    replay::Call call;
    auto result = replay::ReadResult::end;
    while ((result = reader.next(call)) == replay::ReadResult::call) {
        if (call.operation == nullptr || call.argumentCount < call.operation->parameters.size()) {
            continue;
        }
        if (invoke(document, call.operation->dispatchId, call.given()) != InvokeStatus::done) {
            __builtin_trap();
        }
    }
    if (result == replay::ReadResult::malformed &&
        (reader.problem().empty() || reader.line() == 0)) {
        __builtin_trap();
    }
    return 0;
}
