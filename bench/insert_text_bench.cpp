// Running text in memory: `insertText` through the table of operations and through the interface
// itself, against a plain loop that narrows the same texts to bytes and appends them.

#include <algorithm>
#include <array>

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/open_document.h"
#include "common/texts.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t bytesPerRound = 8'000'000;

char narrowed(char16_t unit) {
    return unit < 0x80 ? static_cast<char>(unit) : '?';
}

/// The floor: a unit narrowed, a byte appended.
Seconds secondsOfPlainLoop(const std::u16string& text, std::size_t count) {
    std::string out;
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            for (const char16_t unit : text) {
                out.push_back(narrowed(unit));
            }
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(out.data());
    });
}

/// A lower floor: each text narrowed as a whole into one buffer and appended at once.
Seconds secondsOfBlockLoop(const std::u16string& text, std::size_t count) {
    std::string out;
    std::string narrow;
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            narrow.resize(text.size());
            std::transform(text.begin(), text.end(), narrow.begin(), narrowed);
            out.append(narrow);
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(out.data());
    });
}

Seconds secondsOfInterface(IDocument& document, const std::u16string& text, std::size_t count) {
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(document.insertText(text));
        }
    });
}

void insertText(benchmark::State& state, const std::u16string& text, double goal) {
    const SettingsInForce settings({{"Navig", "4"}});
    const std::size_t count = bytesPerRound / text.size();
    std::array<std::vector<Seconds>, 4> seconds;
    for ([[maybe_unused]] auto _ : state) {
        seconds[0].push_back(secondsOfPlainLoop(text, count));
        seconds[1].push_back(secondsOfBlockLoop(text, count));
        seconds[2].push_back(secondsOfTable(*OpenDocument(), text, count));
        seconds[3].push_back(secondsOfInterface(*OpenDocument(), text, count));
        state.SetIterationTime(seconds[2].back().clock);
    }
    const double plain = median(seconds[0]).processor;
    const double table = median(seconds[2]).processor;
    state.counters["ratio"] = table / plain;
    state.counters["ratio_interface"] = median(seconds[3]).processor / plain;
    state.counters["ratio_to_blocks"] = table / median(seconds[1]).processor;
    state.counters["ns_per_call"] = table * 1e9 / static_cast<double>(count);
    state.counters["goal"] = goal;
}

void paragraphsOf60Words(benchmark::State& state) {
    insertText(state, words(60), 2.0);
}
BENCHMARK(paragraphsOf60Words)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

void textsOf10Characters(benchmark::State& state) {
    insertText(state, u"ten chars.", 5.0);
}
BENCHMARK(textsOf10Characters)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
