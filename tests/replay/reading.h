#pragma once

#include <cstddef>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "driver/boundary/operation_table.h"
#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"
#include "support/recording_document.h"

namespace quillmark::replay {

/// A call as `RecordingDocument` shows it, such as `insertText("a")`.
inline std::string shown(const Call& call) {
    if (call.operation == nullptr) {
        return "new";
    }
    testing::RecordingDocument document;
    std::u16string answer;
    const Argument place = &answer;
    const bool asks = call.argumentCount < call.operation->parameters.size();
    const InvokeStatus status = invoke(document, call.operation->dispatchId,
                                       asks ? std::span<const Argument>(&place, 1) : call.given());
    return status == InvokeStatus::done ? document.calls.at(0) : "refused";
}

/// Everything that a reader finds in an input.
struct Reading {
    std::vector<std::string> calls;
    std::vector<std::size_t> lines;
    std::vector<std::string> recorded;
    /// "LINE: what is wrong", or empty.
    std::string problem;
};

template <typename Reader>
Reading readFrom(std::istream& stream) {
    InputBuffer input(stream);
    const InputFormat format = detectFormat(input);
    Reading reading;
    if (format == InputFormat::nothing) {
        return reading;
    }
    Reader reader(input);
    Call call;
    ReadResult result = reader.next(call);
    for (; result == ReadResult::call; result = reader.next(call)) {
        reading.calls.push_back(shown(call));
        reading.lines.push_back(call.line);
        reading.recorded.emplace_back(call.recorded);
    }
    if (result == ReadResult::malformed) {
        reading.problem = std::to_string(reader.line()) + ": " + reader.problem();
    }
    return reading;
}

template <typename Reader>
Reading readText(const std::string& text) {
    std::istringstream stream(text);
    return readFrom<Reader>(stream);
}

/// Delivers its text in pieces of a few bytes, as a slow pipe does.
class TricklingText final : public std::streambuf {
public:
    TricklingText(std::string text, std::size_t piece) : text_(std::move(text)), piece_(piece) {
        setg(text_.data(), text_.data(), text_.data());
    }

protected:
    int_type underflow() override {
        const std::size_t done = static_cast<std::size_t>(egptr() - text_.data());
        const std::size_t next = std::min(done + piece_, text_.size());
        setg(text_.data(), text_.data() + done, text_.data() + next);
        return done == next ? traits_type::eof() : traits_type::to_int_type(text_[done]);
    }

private:
    std::string text_;
    std::size_t piece_;
};

}  // namespace quillmark::replay
