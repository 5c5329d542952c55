// What a very long line of a call stream or of a recording costs its reader.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <streambuf>
#include <string_view>

#include "replay/input/call_stream_reader.h"
#include "replay/input/recording_reader.h"

namespace quillmark::replay {
namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20U;

/// What is before and after the long text of an input. The first line is short.
struct Frame {
    std::string_view start;
    std::string_view end;
};

constexpr Frame callStream = {"[\"insertText\",\"short\"]\n[\"insertText\",\"", "\"]\n"};
constexpr Frame recording = {"dochtml->insertText(\"short\");\ndochtml->insertText(\"", "\");\n"};

/// `["insertText","xxx..."]` without the text in memory.
class LongCall final : public std::streambuf {
public:
    LongCall(const Frame& frame, std::size_t length) : frame_(frame), left_(length) {
        buffer_.fill('x');
        put(frame.start);
    }

protected:
    int_type underflow() override {
        const std::size_t taken = std::min(left_, buffer_.size());
        left_ -= taken;
        buffer_.fill('x');
        if (taken == 0 && !ended_) {
            ended_ = true;
            put(frame_.end);
            return traits_type::to_int_type(buffer_[0]);
        }
        setg(buffer_.data(), buffer_.data(), buffer_.data() + taken);
        return taken == 0 ? traits_type::eof() : traits_type::to_int_type(buffer_[0]);
    }

private:
    void put(std::string_view text) {
        std::ranges::copy(text, buffer_.begin());
        setg(buffer_.data(), buffer_.data(), buffer_.data() + text.size());
    }

    Frame frame_;
    std::array<char, 65536> buffer_{};
    std::size_t left_;
    bool ended_ = false;
};

std::size_t peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

std::size_t textSize(const Call& call) {
    return std::get<WideText>(call.arguments[0]).size();
}

/// Whether a reader takes the line with at most three times its size.
template <typename Reader>
bool readsWithinThreeTimes(const Frame& frame, std::size_t length) {
    LongCall bytes(frame, length);
    std::istream stream(&bytes);
    InputBuffer input(stream);
    Reader reader(input);
    Call call;
    // What a short line costs too: code, buffers, the heap's own pages.
    const bool readShort = reader.next(call) == ReadResult::call && textSize(call) == 5;
    const std::size_t before = peakMemory();
    const bool read = reader.next(call) == ReadResult::call && textSize(call) == length;
    const std::size_t grown = peakMemory() - before;
    std::cout << "a line of " << length << " bytes needs " << grown << " bytes\n" << std::flush;
    // A reader reads ahead, and the system counts its pages in portions.
    return readShort && read && grown <= 3 * length + mebibyte;
}

/// Runs it in a process of its own, so that the peak is that of the reader.
template <typename Reader>
void expectThreeTimes(const Frame& frame) {
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        _exit(readsWithinThreeTimes<Reader>(frame, 32 * mebibyte) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(ALongLine, OfACallStreamCostsItsReaderAtMostThreeTimesItsSize) {
    expectThreeTimes<CallStreamReader>(callStream);
}

TEST(ALongLine, OfARecordingCostsItsReaderAtMostThreeTimesItsSize) {
    expectThreeTimes<RecordingReader>(recording);
}

}  // namespace
}  // namespace quillmark::replay
