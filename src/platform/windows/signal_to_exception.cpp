#include "platform/signal_to_exception.h"

#include <array>
#include <cstdint>
#include <mutex>

#include "foundation/orx_exception.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

namespace {

/// The reasons have the same wording on all systems, so that logs do not differ.
const char* reasonFor(DWORD code) noexcept {
    switch (code) {
        case EXCEPTION_ACCESS_VIOLATION:
        case EXCEPTION_IN_PAGE_ERROR:
            return "Processor signal SIGSEGV (invalid memory access)";
        case EXCEPTION_DATATYPE_MISALIGNMENT:
            return "Processor signal SIGBUS (invalid memory access)";
        case EXCEPTION_INT_DIVIDE_BY_ZERO:
        case EXCEPTION_INT_OVERFLOW:
        case EXCEPTION_FLT_DIVIDE_BY_ZERO:
        case EXCEPTION_FLT_INVALID_OPERATION:
        case EXCEPTION_FLT_OVERFLOW:
        case EXCEPTION_FLT_UNDERFLOW:
        case EXCEPTION_FLT_INEXACT_RESULT:
        case EXCEPTION_FLT_DENORMAL_OPERAND:
        case EXCEPTION_FLT_STACK_CHECK:
            return "Processor signal SIGFPE (arithmetic error)";
        case EXCEPTION_ILLEGAL_INSTRUCTION:
        case EXCEPTION_PRIV_INSTRUCTION:
            return "Processor signal SIGILL (illegal instruction)";
        default:
            return nullptr;
    }
}

/// Where execution continues after a signal in this thread.
struct Landing {
    /// The buffer of the compiler's own jump. Unlike `longjmp` it does not unwind the stack, which
    /// may contain frames of the system.
    std::array<void*, 5> place;
    const char* reason;
    Landing* outer;
};

thread_local Landing* innermost = nullptr;

/// Runs on the stack of the interrupted code, as if that code had called it.
[[noreturn]] void jumpToLanding() {
    __builtin_longjmp(innermost->place.data(), 1);
}

/// Makes the thread continue in `jumpToLanding`. The stack pointer is set well below everything
/// that the interrupted code has on its stack, and aligned as after a call.
void redirect(CONTEXT& context) noexcept {
    constexpr std::uintptr_t room = 512;
    constexpr std::uintptr_t alignment = 16;
    const auto below = [](std::uintptr_t stack) {
        return ((stack - room) & ~(alignment - 1)) - sizeof(void*);
    };
    const auto target = reinterpret_cast<std::uintptr_t>(&jumpToLanding);
#ifdef _WIN64
    context.Rsp = below(context.Rsp);
    context.Rip = target;
#else
    context.Esp = below(context.Esp);
    context.Eip = target;
#endif
}

LONG CALLBACK onException(EXCEPTION_POINTERS* exception) {
    const char* const reason = reasonFor(exception->ExceptionRecord->ExceptionCode);
    if (innermost == nullptr || reason == nullptr) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    innermost->reason = reason;
    redirect(*exception->ContextRecord);
    return EXCEPTION_CONTINUE_EXECUTION;
}

/// The handler is installed while any guard of the process exists.
struct Installation {
    std::mutex mutex;
    int guards = 0;
    void* handler = nullptr;
};

Installation& installation() noexcept {
    static Installation instance;
    return instance;
}

void install() noexcept {
    Installation& current = installation();
    const std::lock_guard lock(current.mutex);
    if (current.guards++ == 0) {
        constexpr ULONG inFront = 1;
        current.handler = AddVectoredExceptionHandler(inFront, onException);
    }
}

void uninstall() noexcept {
    Installation& current = installation();
    const std::lock_guard lock(current.mutex);
    if (--current.guards == 0) {
        RemoveVectoredExceptionHandler(current.handler);
    }
}

/// Registers a landing for this thread. Only the outermost guard installs the handler.
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

/// Runs `body`. True if a signal interrupted it. This must stay a function of its own, without
/// objects that have destructors, because the jump returns into its frame.
[[gnu::noinline]] bool isInterrupted(const std::function<void()>& body, Landing& landing) {
    if (__builtin_setjmp(landing.place.data()) != 0) {
        return true;
    }
    innermost = &landing;
    body();
    return false;
}

}  // namespace

void CSignal2Exception::run(const std::function<void()>& body) {
    const char* reason = nullptr;
    {
        Landing landing{};
        const Guard guard(landing);
        if (isInterrupted(body, landing)) {
            reason = landing.reason;
        }
    }
    if (reason != nullptr) {
        OrxException::raise(reason);
    }
}

}  // namespace quillmark
