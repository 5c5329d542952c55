// Finding an operation by its name, as every replayed call and every late-bound host does, against
// a text of ten characters, which is the cheapest call that writes something.

#include <array>

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/short_calls.h"
#include "driver/boundary/operation_table.h"
#include "driver/doc_html.h"

namespace quillmark::bench {

namespace {

/// The calls of an ordinary report, roughly as often as they come.
constexpr std::array<std::string_view, 10> commonCalls = {
    "insertText", "setStyle",   "insertText", "insertEndl", "insertXref",
    "insertText", "insertEndl", "addCell",    "insertTag",  "insertPageBreak"};

template <typename Names>
Seconds secondsOfNames(const Names& names) {
    return secondsOf([&] {
        std::size_t next = 0;
        for (int i = 0; i < calls; ++i) {
            benchmark::DoNotOptimize(findOperation(names[next]));
            next = next + 1 < names.size() ? next + 1 : 0;
        }
    });
}

std::vector<std::string_view> allNames() {
    std::vector<std::string_view> names;
    for (const Operation& row : operations()) {
        names.emplace_back(row.name);
    }
    return names;
}

void namesOfOperations(benchmark::State& state) {
    const SettingsInForce settings({{"Navig", "4"}});
    const std::vector<std::string_view> all = allNames();
    std::vector<Seconds> common;
    std::vector<Seconds> each;
    std::vector<Seconds> texts;
    for ([[maybe_unused]] auto _ : state) {
        DocHtml document;
        document.create((freshDirectory(Place::memory) / "report.htm").u16string());
        common.push_back(secondsOfNames(commonCalls));
        each.push_back(secondsOfNames(all));
        texts.push_back(secondsOfTexts(document));
        state.SetIterationTime(common.back().clock);
    }
    state.counters["ns_per_name"] = median(common).processor * 1e9 / calls;
    state.counters["ns_per_name_of_all"] = median(each).processor * 1e9 / calls;
    state.counters["share_of_short_text"] = median(common).processor / median(texts).processor;
}
BENCHMARK(namesOfOperations)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
