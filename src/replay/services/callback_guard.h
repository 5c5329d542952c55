#pragma once

#include <atomic>
#include <cstddef>
#include <string_view>

#include "dochtml/callbacks.h"

namespace quillmark::replay {

[[nodiscard]] inline std::string_view viewOf(const DochtmlText* text) noexcept {
    return {text->data, text->size};
}

inline void answer(const DochtmlSink* sink, std::string_view text) {
    const DochtmlText passed{text.data(), text.size()};
    sink->put(sink->context, &passed);
}

/// How many callbacks of this process have failed. The component cannot tell the tool.
inline std::atomic<std::size_t> failedCallbacks{0};

/// Runs the body of a callback. If it throws, the result is `failed`.
template <typename Result, typename Body>
Result guarded(Result failed, Body body) noexcept {
    try {
        return body();
    } catch (...) {
        ++failedCallbacks;
        return failed;
    }
}

template <typename Body>
void guarded(Body body) noexcept {
    guarded(0, [&] {
        body();
        return 0;
    });
}

}  // namespace quillmark::replay
