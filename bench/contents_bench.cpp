// 100,000 contents entries with a listing on the second page, in every variant of the contents
// pages.

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/texts.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t entriesPerPage = 10;
void contents(IDocument& document, std::size_t entries) {
    document.insertText(u"Title page");
    document.insertPageBreak();
    document.insertText(u"Contents");
    document.insertTOC();
    for (std::size_t i = 0; i < entries; ++i) {
        if (i % entriesPerPage == 0) {
            document.insertPageBreak();
        }
        document.setStyle(numbered(u"Heading ", 1 + i % 4));
        document.insertText(numbered(u"Section ", i));
        document.insertEndl();
        document.setStyle(u"Normal");
        document.insertText(u"As told above.");
        document.insertEndl();
    }
}

void contentsPages(benchmark::State& state) {
    const SettingsInForce settings({{"SupportOld", state.range(0) != 0 ? "true" : "false"},
                                    {"LocateInBrowser", state.range(1) != 0 ? "true" : "false"},
                                    {"ShowIcons", state.range(2) != 0 ? "true" : "false"}});
    documentDoubled(state, Place::memory, contents, 100'000);
    state.counters["goal"] = doublingGoal;
}
BENCHMARK(contentsPages)
    ->ArgNames({"SupportOld", "LocateInBrowser", "ShowIcons"})
    ->ArgsProduct({{0, 1}, {0, 1}, {0, 1}})
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
