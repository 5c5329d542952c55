#include "faults/call_streams.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "foundation/orx_string.h"
#include "replay/input/call_stream_reader.h"

namespace quillmark::testing {

namespace {

constexpr std::string_view titleStart = "== ";

/// A directory as it stands in a JSON string.
std::string inJson(const std::string& directory) {
    return OrxString(directory).replaceStr("\\", "\\\\").str();
}

std::vector<CallStream> readStreams(const std::string& in, const std::string& out) {
    std::ifstream file(DOCHTML_FAULT_STREAMS, std::ios::binary);
    std::vector<CallStream> streams;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(titleStart)) {
            streams.push_back({line.substr(titleStart.size()), {}});
        } else {
            OrxString text(line);
            text.replaceStr("$IN", inJson(in)).replaceStr("$OUT", inJson(out));
            streams.back().text += text.str() + "\n";
        }
    }
    return streams;
}

std::string streamNamed(std::string_view name, const std::string& in, const std::string& out) {
    for (const CallStream& stream : readStreams(in, out)) {
        if (stream.name == name) {
            return stream.text;
        }
    }
    throw std::logic_error("there is no such stream");
}

}  // namespace

std::vector<CallStream> callStreams(const std::string& in, const std::string& out) {
    std::vector<CallStream> streams = readStreams(in, out);
    std::erase_if(streams, [](const CallStream& stream) {
        return stream.name == "settle" || stream.name == "second";
    });
    return streams;
}

std::string settlingStream(const std::string& in, const std::string& out) {
    return streamNamed("settle", in, out);
}

std::string secondStream(const std::string& in, const std::string& out) {
    return streamNamed("second", in, out);
}

void OwnedCall::add(const Argument& argument) {
    if (const auto* const text = std::get_if<WideText>(&argument)) {
        arguments_.emplace_back(std::u16string(*text));
    } else if (const auto* const boolean = std::get_if<bool>(&argument)) {
        arguments_.emplace_back(*boolean);
    } else {
        arguments_.emplace_back(std::get<std::int64_t>(argument));
    }
}

void OwnedCall::play(replay::LateBoundDocument& document) const {
    std::array<Argument, replay::Call::maxArguments> given;
    std::u16string answer;
    const std::size_t count = operation_->parameters.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (i < arguments_.size()) {
            std::visit(
                [&](const auto& value) {
                    if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::u16string>) {
                        given.at(i) = WideText(value);
                    } else {
                        given.at(i) = value;
                    }
                },
                arguments_[i]);
        } else {
            given.at(i) = &answer;
        }
    }
    document.invoke(operation_->dispatchId, std::span(given).first(count));
}

std::vector<OwnedCall> parseCalls(const std::string& text) {
    std::istringstream stream(text);
    replay::InputBuffer input(stream);
    replay::CallStreamReader reader(input);
    std::vector<OwnedCall> calls;
    replay::Call call;
    replay::ReadResult result = reader.next(call);
    for (; result == replay::ReadResult::call; result = reader.next(call)) {
        OwnedCall& owned = calls.emplace_back(*call.operation);
        std::ranges::for_each(call.given(), [&](const Argument& value) { owned.add(value); });
    }
    if (result == replay::ReadResult::malformed) {
        throw std::logic_error(reader.problem());
    }
    return calls;
}

}  // namespace quillmark::testing
