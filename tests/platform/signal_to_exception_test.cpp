#include "platform/signal_to_exception.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "foundation/orx_exception.h"
#include "support/capturing_exception_log.h"

namespace quillmark {
namespace {

// The faults are intended. The sanitizers must not catch them first.
#if defined(__clang__)
#define NO_SIGNAL_CHECKS __attribute__((noinline, no_sanitize("undefined")))
#else
#define NO_SIGNAL_CHECKS __attribute__((noinline, no_sanitize_undefined))
#endif

/// Writes to an invalid address, which is hidden from the compiler to avoid a warning.
NO_SIGNAL_CHECKS void strikeWildAddress() {
    int* volatile nowhere = nullptr;
    *static_cast<volatile int*>(nowhere) = 1;
}

[[gnu::noinline]] void strikeIllegalInstruction() {
    __builtin_trap();
}

std::string reasonOf(const std::function<void()>& body) {
    try {
        CSignal2Exception::run(body);
    } catch (const OrxException& failure) {
        return failure.reasonText().str();
    }
    return "no signal";
}

constexpr const char* wildAddress = "Processor signal SIGSEGV (invalid memory access)";

#if defined(__x86_64__) || defined(__i386__)
NO_SIGNAL_CHECKS int divide(int number, int by) {
    return number / by;
}

TEST(SignalGuard, TurnsADivisionByZeroIntoAnException) {
    volatile int number = 1;
    volatile int zero = 0;
    EXPECT_EQ(reasonOf([&] { number = divide(number, zero); }),
              "Processor signal SIGFPE (arithmetic error)");
}
#endif

TEST(SignalGuard, RunsItsBodyOnce) {
    int runs = 0;
    EXPECT_EQ(reasonOf([&] { ++runs; }), "no signal");
    EXPECT_EQ(runs, 1);
}

TEST(SignalGuard, TurnsAWildAddressIntoAnException) {
    EXPECT_EQ(reasonOf(strikeWildAddress), wildAddress);
}

TEST(SignalGuard, TurnsAnIllegalInstructionIntoAnException) {
    EXPECT_EQ(reasonOf(strikeIllegalInstruction), "Processor signal SIGILL (illegal instruction)");
}

TEST(SignalGuard, WritesToTheExceptionLog) {
    const CapturingExceptionLog log;
    EXPECT_EQ(reasonOf(strikeWildAddress), wildAddress);
    EXPECT_EQ(log.messages(),
              std::vector<std::string>{std::string("Exception throw: ") + wildAddress + "\n"});
}

TEST(SignalGuard, WorksAgainAndAgain) {
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(reasonOf(strikeWildAddress), wildAddress);
    }
}

TEST(SignalGuard, LetsExceptionsOfTheBodyPass) {
    EXPECT_THROW(CSignal2Exception::run([] { throw std::runtime_error("own"); }),
                 std::runtime_error);
    EXPECT_EQ(reasonOf(strikeWildAddress), wildAddress);
}

TEST(SignalGuard, CatchesInTheInnermostGuard) {
    std::string inner;
    const std::string outer = reasonOf([&] {
        inner = reasonOf(strikeWildAddress);
        strikeIllegalInstruction();
    });
    EXPECT_EQ(inner, wildAddress);
    EXPECT_EQ(outer, "Processor signal SIGILL (illegal instruction)");
}

TEST(SignalGuard, LetsAnInnerReasonLeaveTheOuterGuard) {
    EXPECT_EQ(reasonOf([] { CSignal2Exception::run(strikeWildAddress); }), wildAddress);
}

TEST(SignalGuard, IsEachThreadsOwn) {
    std::vector<std::thread> threads;
    std::vector<std::string> reasons(4);
    for (std::string& reason : reasons) {
        threads.emplace_back([&reason] {
            for (int i = 0; i < 50; ++i) {
                reason = reasonOf(strikeWildAddress);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(reasons, std::vector<std::string>(4, wildAddress));
}

}  // namespace
}  // namespace quillmark
