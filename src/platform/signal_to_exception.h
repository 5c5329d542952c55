#pragma once

#include <functional>

namespace quillmark {

/// Turns a processor signal (a wild address, a division by zero, an illegal instruction) that
/// strikes while `body` runs into an `OrxException` that leaves `run`.
///
/// What the interrupted code held is not released; the guard is for work whose failure must not
/// take the host's process down. Guards nest. Elsewhere in the process signals are as before.
class CSignal2Exception {
public:
    static void run(const std::function<void()>& body);
};

}  // namespace quillmark
