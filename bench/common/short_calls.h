#pragma once

#include <benchmark/benchmark.h>

#include "common/measure.h"
#include "driver/boundary/i_document.h"

namespace quillmark::bench {

/// How often a benchmark of very short calls repeats its call.
inline constexpr int calls = 1'000'000;

/// The time of that many texts of ten characters, the cheapest call that writes something.
inline Seconds secondsOfTexts(IDocument& document) {
    return secondsOf([&] {
        for (int i = 0; i < calls; ++i) {
            benchmark::DoNotOptimize(document.insertText(u"ten chars."));
        }
    });
}

}  // namespace quillmark::bench
