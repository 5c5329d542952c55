// What a very long line of a call stream costs its reader.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <iostream>
#include <streambuf>

#include "replay/input/call_stream_reader.h"

namespace quillmark::replay {
namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20U;

/// `["insertText","xxx..."]` without the text in memory.
class LongCall final : public std::streambuf {
public:
    explicit LongCall(std::size_t length) : left_(length) {
        buffer_.fill('x');
        std::memcpy(buffer_.data(), start, std::strlen(start));
        setg(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

protected:
    int_type underflow() override {
        const std::size_t taken = std::min(left_, buffer_.size());
        left_ -= taken;
        buffer_.fill('x');
        if (taken == 0 && !ended_) {
            ended_ = true;
            std::memcpy(buffer_.data(), end, std::strlen(end));
            setg(buffer_.data(), buffer_.data(), buffer_.data() + std::strlen(end));
            return traits_type::to_int_type(buffer_[0]);
        }
        setg(buffer_.data(), buffer_.data(), buffer_.data() + taken);
        return taken == 0 ? traits_type::eof() : traits_type::to_int_type(buffer_[0]);
    }

private:
    static constexpr const char* start = "[\"insertText\",\"";
    static constexpr const char* end = "\"]\n";
    std::array<char, 65536> buffer_{};
    std::size_t left_;
    bool ended_ = false;
};

std::size_t peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// Whether a reader takes the line with at most three times its size.
bool readsWithinThreeTimes(std::size_t length) {
    const std::size_t before = peakMemory();
    LongCall bytes(length);
    std::istream stream(&bytes);
    InputBuffer input(stream);
    CallStreamReader reader(input);
    Call call;
    const bool read = reader.next(call) == ReadResult::call &&
                      std::get<WideText>(call.arguments[0]).size() >= length;
    const std::size_t grown = peakMemory() - before;
    std::cout << "a line of " << length << " bytes needs " << grown << " bytes\n" << std::flush;
    // The rest is what a short line costs too: code, buffers, the heap's own pages.
    return read && grown <= 3 * length + 4 * mebibyte;
}

TEST(ALongLine, CostsItsReaderAtMostThreeTimesItsSize) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps freed memory";
#endif
    // In a process of its own, so that the peak is that of the reader.
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        _exit(readsWithinThreeTimes(32 * mebibyte) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace quillmark::replay
