#include "common/child_process.h"

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmark::bench {

namespace {

double inSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

ChildRun runChild(const std::vector<std::string>& arguments) {
    std::vector<std::string> copies = arguments;
    const std::vector<char*> pointers = pointersTo(copies);
    ChildRun run;
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage used{};
    if (::posix_spawn(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ) != 0 ||
        ::wait4(child, &status, 0, &used) != child) {
        return run;
    }
    const auto clock = std::chrono::steady_clock::now() - start;
    run.seconds.clock = std::chrono::duration<double>(clock).count();
    run.seconds.processor = inSeconds(used.ru_utime) + inSeconds(used.ru_stime);
    run.succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return run;
}

}  // namespace quillmark::bench
