// What the call trace costs while it is off: an operation that does nothing but write its call
// line, against a text of ten characters, which does a text's work besides.

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/short_calls.h"
#include "driver/doc_html.h"

namespace quillmark::bench {

namespace {

Seconds secondsOfBareCalls(IDocument& document) {
    return secondsOf([&] {
        for (int i = 0; i < calls; ++i) {
            benchmark::DoNotOptimize(document.start());
        }
    });
}

void traceOff(benchmark::State& state) {
    const SettingsInForce settings({{"Navig", "4"}});
    std::vector<Seconds> bare;
    std::vector<Seconds> texts;
    for ([[maybe_unused]] auto _ : state) {
        DocHtml document;
        document.create((freshDirectory(Place::memory) / "report.htm").u16string());
        bare.push_back(secondsOfBareCalls(document));
        texts.push_back(secondsOfTexts(document));
        state.SetIterationTime(bare.back().clock);
    }
    state.counters["ns_per_call"] = median(bare).processor * 1e9 / calls;
    state.counters["share_of_short_text"] = median(bare).processor / median(texts).processor;
}
BENCHMARK(traceOff)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
