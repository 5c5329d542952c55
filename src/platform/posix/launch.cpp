#include "platform/posix/launch.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark {

namespace {

/// Everything that the code between `fork` and the new program needs, prepared in advance. That
/// code may only make calls that are safe in signal handlers, since other threads of the host may
/// hold any lock.
struct Launch {
    const char* program;
    char* const* arguments;
    /// The system closes it when the program starts. A byte in it means that the start failed.
    int failurePipe;
};

/// Duplicates a descriptor under a number above those of the standard streams. Started programs do
/// not inherit it. Returns -1 on failure. The caller still owns the old number.
int aboveStreams(int number) noexcept {
    return fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
}

void silenceStreams() noexcept {
    // If the host has closed its standard streams, the first free descriptor is one of their
    // numbers.
    const int nowhere = aboveStreams(open("/dev/null", O_RDWR | O_CLOEXEC));
    if (nowhere >= 0) {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            dup2(nowhere, stream);
        }
    }
}

void unblockSignals() noexcept {
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void reportFailure(const Launch& launch) noexcept {
    const char sign = 1;
    static_cast<void>(!write(launch.failurePipe, &sign, 1));
    _exit(127);
}

[[noreturn]] void becomeProgram(const Launch& launch) noexcept {
    setsid();
    silenceStreams();
    unblockSignals();
    // A program expects them as they are by default, even if this one ignores them.
    static_cast<void>(signal(SIGPIPE, SIG_DFL));
    static_cast<void>(signal(SIGXFSZ, SIG_DFL));
    if (strchr(launch.program, '/') != nullptr) {
        // Not execvp: it would give a file that is not a program to a shell, and report success.
        execv(launch.program, launch.arguments);
    } else {
        execvp(launch.program, launch.arguments);
    }
    reportFailure(launch);
}

/// Forks twice. The parent of the program ends at once, so that the system adopts the program and
/// the host never sees a terminated child that it does not know.
bool forkTwice(const Launch& launch) noexcept {
    const pid_t middle = fork();
    if (middle == 0) {
        const pid_t program = fork();
        if (program == 0) {
            becomeProgram(launch);
        }
        if (program < 0) {
            reportFailure(launch);
        }
        _exit(0);
    }
    if (middle < 0) {
        return false;
    }
    uninterrupted([middle] { return waitpid(middle, nullptr, 0); });
    return true;
}

}  // namespace

bool launchDetached(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> texts = {program};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);

    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return false;
    }
    const Descriptor failures(ends[0]);
    Descriptor sender(ends[1]);
    // The standard streams take over the first three descriptors before the program starts.
    sender = Descriptor(aboveStreams(sender.number()));
    if (!sender.isOpen() || !forkTwice({program.c_str(), pointers.data(), sender.number()})) {
        return false;
    }
    static_cast<void>(sender.close());
    char sign = 0;
    return descriptor_io::readSome(failures, {&sign, 1}) == 0;
}

}  // namespace quillmark
