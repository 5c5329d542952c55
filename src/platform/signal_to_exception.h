#pragma once

#include <functional>

namespace quillmark {

/// Turns processor signals (invalid address, division by zero, illegal instruction) into
/// exceptions.
///
/// The interrupted code does not release what it holds. Use the guard for work whose failure must
/// not end the host's process.
class CSignal2Exception {
public:
    /// Runs `body`. A signal raised by it in this thread ends it, and `run` throws an
    /// `OrxException`. Exceptions of `body` pass. Guards may be nested. Signals raised elsewhere
    /// are handled as without a guard.
    static void run(const std::function<void()>& body);
};

}  // namespace quillmark
