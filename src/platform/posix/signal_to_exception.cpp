#include "platform/signal_to_exception.h"

#include <array>
#include <atomic>
#include <csetjmp>
#include <csignal>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "foundation/module_lifetime.h"
#include "foundation/orx_exception.h"

namespace quillmark {

namespace {

struct GuardedSignal {
    int number;
    const char* reason;
};

/// The last one is used to check whether the handlers are installed.
constexpr std::array<GuardedSignal, 4> guardedSignals = {{
    {SIGBUS, "Processor signal SIGBUS (invalid memory access)"},
    {SIGFPE, "Processor signal SIGFPE (arithmetic error)"},
    {SIGILL, "Processor signal SIGILL (illegal instruction)"},
    {SIGSEGV, "Processor signal SIGSEGV (invalid memory access)"},
}};

/// Where execution continues after a signal in this thread.
struct Landing {
    sigjmp_buf place;
    Landing* outer;
};

/// The signal handler reads this. With this TLS model the variable exists from the start of every
/// thread, so that reading it never allocates.
[[gnu::tls_model("initial-exec")]] thread_local Landing* innermost = nullptr;

/// The host's own signal handling. It does not change after publication, except for the flags of
/// handlers that are valid for one signal only.
struct HostActions {
    std::array<struct sigaction, guardedSignals.size()> actions{};
    std::array<std::atomic<bool>, guardedSignals.size()> spent{};
};

std::atomic<HostActions*> hostActions{nullptr};

/// The system declares the flags as a signed integer, although one of them is its highest bit.
bool hasFlag(const struct sigaction& action, unsigned flag) noexcept {
    return (static_cast<unsigned>(action.sa_flags) & flag) != 0;
}

void applyDefaultAction(int signal, const siginfo_t& info) noexcept {
    struct sigaction systems {};
    systems.sa_handler = SIG_DFL;
    sigaction(signal, &systems, nullptr);
    // A signal of the processor occurs again when the handler returns. One that a program sent must
    // be sent again.
    if (info.si_code <= 0) {
        raise(signal);
    }
}

void callHostHandler(const struct sigaction& action, int signal, siginfo_t* info,
                     void* context) noexcept {
    sigset_t blocked = action.sa_mask;
    if (!hasFlag(action, SA_NODEFER)) {
        sigaddset(&blocked, signal);
    }
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    if (hasFlag(action, SA_SIGINFO)) {
        action.sa_sigaction(signal, info, context);
    } else {
        action.sa_handler(signal);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

/// Handles a signal in a thread without a guard as the host would.
void passOn(int signal, siginfo_t* info, void* context) noexcept {
    HostActions& host = *hostActions.load(std::memory_order_acquire);
    std::size_t i = 0;
    while (i + 1 < guardedSignals.size() && guardedSignals[i].number != signal) {
        ++i;
    }
    const struct sigaction& action = host.actions[i];
    const bool isHandler = hasFlag(action, SA_SIGINFO) ||
                           (action.sa_handler != SIG_DFL && action.sa_handler != SIG_IGN);
    if (isHandler && !host.spent[i].load()) {
        host.spent[i].store(hasFlag(action, SA_RESETHAND));
        callHostHandler(action, signal, info, context);
    } else if (isHandler || action.sa_handler == SIG_DFL || info->si_code > 0) {
        applyDefaultAction(signal, *info);
    }
}

void onSignal(int signal, siginfo_t* info, void* context) {
    if (innermost == nullptr) {
        passOn(signal, info, context);
        return;
    }
    siglongjmp(innermost->place, signal);
}

bool isOurs(const struct sigaction& action) noexcept {
    return hasFlag(action, SA_SIGINFO) && action.sa_sigaction == onSignal;
}

struct sigaction currentAction(int signal) noexcept {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action;
}

/// Installs the handlers with the first guard and leaves them installed, since installing and
/// removing them would cost eight system calls per page. Without a guard they pass every signal on.
class Installation {
public:
    Installation() = default;
    Installation(const Installation&) = delete;
    Installation& operator=(const Installation&) = delete;
    /// An unloaded library must not leave a handler installed.
    ~Installation() {
        const HostActions* const host = hostActions.load(std::memory_order_acquire);
        for (std::size_t i = 0; host != nullptr && i < guardedSignals.size(); ++i) {
            if (isOurs(currentAction(guardedSignals[i].number))) {
                sigaction(guardedSignals[i].number, &host->actions[i], nullptr);
            }
        }
    }

    /// Makes sure that the handlers are installed. A host that later installs its own most likely
    /// does so for invalid addresses, so that signal is checked.
    void check() {
        if (!isOurs(currentAction(SIGSEGV))) {
            install();
        }
    }

private:
    void install() {
        const std::lock_guard lock(mutex_);
        if (isOurs(currentAction(SIGSEGV))) {
            return;  // Another thread was faster.
        }
        auto next = std::make_unique<HostActions>();
        const HostActions* const last = hostActions.load(std::memory_order_acquire);
        for (std::size_t i = 0; i < guardedSignals.size(); ++i) {
            const struct sigaction current = currentAction(guardedSignals[i].number);
            const bool known = last != nullptr && isOurs(current);
            next->actions[i] = known ? last->actions[i] : current;
            next->spent[i] = known && last->spent[i];
        }
        // Published before the handlers are installed, so that they always have something to pass a
        // signal on to.
        published_.push_back(std::move(next));
        hostActions.store(published_.back().get(), std::memory_order_release);
        struct sigaction ours {};
        ours.sa_sigaction = onSignal;
        // Not deferred: the handler exits by a jump, and later signals must still arrive.
        ours.sa_flags = SA_SIGINFO | SA_NODEFER | SA_ONSTACK;
        for (const GuardedSignal& guarded : guardedSignals) {
            if (!isOurs(currentAction(guarded.number))) {
                sigaction(guarded.number, &ours, nullptr);
            }
        }
    }

    std::mutex mutex_;
    /// Never freed, since a handler in another thread may still read an older one.
    std::vector<std::unique_ptr<HostActions>> published_;
};

Installation& installation() {
    static ModuleLifetime<Installation> instance;
    return *instance;
}

/// Registers a landing for this thread. Only the outermost guard checks the handlers.
class Guard {
public:
    explicit Guard(Landing& landing) : landing_(landing) {
        landing_.outer = innermost;
        if (landing_.outer == nullptr) {
            installation().check();
        }
    }
    ~Guard() { innermost = landing_.outer; }
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

/// Runs `body` and returns the signal that interrupted it, or 0. The function has no objects with
/// destructors, which the jump would skip.
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
