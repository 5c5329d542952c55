#include "command_line/program.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <new>
#include <system_error>

#include "platform/console.h"

namespace quillmark {

namespace {

constexpr int failed = 1;

/// Needs no memory: standard error has no buffer.
int report(const char* name, const char* what) noexcept {
    for (const char* const part : std::array{name, ": ", what, "\n"}) {
        std::fputs(part, stderr);
    }
    return failed;
}

}  // namespace

int runProgram(const char* name, int argc, char** argv,
               int (*body)(int argc, char** argv)) noexcept {
    try {
        Console::readInputAsBytes();
        Console::reportFailedWrites();
        return body(argc, argv);
    } catch (const std::bad_alloc&) {
        return report(name, "out of memory");
    } catch (const std::exception& failure) {
        return report(name, failure.what());
    }
}

std::string outputProblem(std::ostream& out) {
    errno = 0;
    if (out.flush()) {
        return {};
    }
    int reason = errno;
    if (reason == 0) {
        // It failed earlier. The system gives its reason again for one more byte.
        out.clear();
        out.put('\n').flush();
        reason = errno;
        out.setstate(std::ios::badbit);
    }
    const std::string problem = "cannot write the output";
    return reason == 0 ? problem : problem + ": " + std::generic_category().message(reason);
}

}  // namespace quillmark
