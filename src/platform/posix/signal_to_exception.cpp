#include "platform/signal_to_exception.h"

#include <array>
#include <csetjmp>
#include <csignal>
#include <cstddef>
#include <mutex>

#include "foundation/orx_exception.h"

namespace quillmark {

namespace {

struct GuardedSignal {
    int number;
    const char* reason;
};

constexpr std::array<GuardedSignal, 4> guardedSignals = {{
    {SIGSEGV, "Processor signal SIGSEGV (invalid memory access)"},
    {SIGBUS, "Processor signal SIGBUS (invalid memory access)"},
    {SIGFPE, "Processor signal SIGFPE (arithmetic error)"},
    {SIGILL, "Processor signal SIGILL (illegal instruction)"},
}};

/// Where a signal goes on in the thread that it struck.
struct Landing {
    sigjmp_buf place;
    Landing* outer;
};

thread_local Landing* innermost = nullptr;

/// What the host had in place, kept while any guard of the process is open.
struct Installation {
    std::mutex mutex;
    int guards = 0;
    std::array<struct sigaction, guardedSignals.size()> before{};
};

Installation& installation() noexcept {
    static Installation instance;
    return instance;
}

const struct sigaction& actionBefore(int signal) noexcept {
    std::size_t i = 0;
    while (i + 1 < guardedSignals.size() && guardedSignals[i].number != signal) {
        ++i;
    }
    return installation().before[i];
}

/// A signal in a thread without a guard: what the host had in place answers it.
void passOn(int signal, siginfo_t* info, void* context) noexcept {
    const struct sigaction& before = actionBefore(signal);
    if ((before.sa_flags & SA_SIGINFO) != 0) {
        before.sa_sigaction(signal, info, context);
    } else if (before.sa_handler != SIG_DFL && before.sa_handler != SIG_IGN) {
        before.sa_handler(signal);
    } else if (before.sa_handler == SIG_DFL || info->si_code > 0) {
        // The system's own answer ends the process; it gets the signal again on return.
        struct sigaction systems {};
        systems.sa_handler = SIG_DFL;
        sigaction(signal, &systems, nullptr);
        raise(signal);
    }
}

void onSignal(int signal, siginfo_t* info, void* context) {
    if (innermost == nullptr) {
        passOn(signal, info, context);
        return;
    }
    siglongjmp(innermost->place, signal);
}

void install() noexcept {
    Installation& handlers = installation();
    const std::lock_guard lock(handlers.mutex);
    if (handlers.guards++ > 0) {
        return;
    }
    struct sigaction action {};
    action.sa_sigaction = onSignal;
    // Not deferred: the handler is left by a jump, and the signal must strike again later.
    action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_ONSTACK;
    for (std::size_t i = 0; i < guardedSignals.size(); ++i) {
        sigaction(guardedSignals[i].number, &action, &handlers.before[i]);
    }
}

void uninstall() noexcept {
    Installation& handlers = installation();
    const std::lock_guard lock(handlers.mutex);
    if (--handlers.guards > 0) {
        return;
    }
    for (std::size_t i = 0; i < guardedSignals.size(); ++i) {
        sigaction(guardedSignals[i].number, &handlers.before[i], nullptr);
    }
}

/// A guard of the thread. Nested ones find the handlers in place.
class Guard {
public:
    explicit Guard(Landing& landing) noexcept : landing_(landing) {
        landing_.outer = innermost;
        if (landing_.outer == nullptr) {
            install();
        }
    }
    ~Guard() {
        innermost = landing_.outer;
        if (landing_.outer == nullptr) {
            uninstall();
        }
    }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

private:
    Landing& landing_;
};

const char* reasonFor(int signal) noexcept {
    for (const GuardedSignal& guarded : guardedSignals) {
        if (guarded.number == signal) {
            return guarded.reason;
        }
    }
    return "Processor signal";
}

/// The signal that struck while the body ran, or 0. Nothing with a destructor lives here: a jump
/// into this function must have nothing to skip.
int signalDuring(const std::function<void()>& body, Landing& landing) {
    const int signal = sigsetjmp(landing.place, 0);
    if (signal == 0) {
        innermost = &landing;
        body();
    }
    return signal;
}

}  // namespace

void CSignal2Exception::run(const std::function<void()>& body) {
    int signal = 0;
    {
        Landing landing{};
        const Guard guard(landing);
        signal = signalDuring(body, landing);
    }
    if (signal != 0) {
        OrxException::raise(reasonFor(signal));
    }
}

}  // namespace quillmark
