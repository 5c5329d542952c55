#pragma once

#include <new>

#include "platform/trace.h"

namespace quillmark {

/// Reports the exception being handled, for which there was no memory: to the exception log, and to
/// the trace as an error. `what` says what is lost. Needs no memory itself.
void reportOutOfMemory(const Trace& trace, const char* what) noexcept;

/// Runs a step of a document. If memory runs out in it, the rest of the step is lost and reported,
/// and the document goes on. Other exceptions pass. Returns whether the step is done.
///
///     survive(trace, "the header of a page", [&] { page.appendTop(header()); });
template <typename Step>
bool survive(const Trace& trace, const char* what, const Step& step) {
    try {
        step();
        return true;
    } catch (const std::bad_alloc&) {
        reportOutOfMemory(trace, what);
        return false;
    }
}

}  // namespace quillmark
