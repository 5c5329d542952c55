// A report of pages of about 7 KB with and without the script navigator: what the search index
// costs, in time, in bytes and in memory, and as it grows.

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/bench_settings.h"
#include "common/child_process.h"
#include "common/measure.h"
#include "common/peak_memory.h"
#include "common/varied_report.h"
#include "navigator/index/word_index.h"
#include "navigator/text/page_words.h"
#include "platform/text_encoding.h"

namespace quillmark::bench {

namespace {

struct Run {
    Seconds seconds;
    double peakMemory;
};

Run runReport(const std::filesystem::path& directory, std::size_t pages, const char* navigator) {
    const SettingsInForce settings({{"ScriptNavigator", navigator}});
    settle(Place::memory);
    resetPeakMemory();
    const Seconds seconds = secondsOfDocument(directory, varied_report::play, pages);
    return {seconds, peakMemoryGrowth()};
}

struct Sizes {
    std::size_t pages = 0;
    std::size_t index = 0;
    std::size_t pairs = 0;
};

/// Reads the set again for what the index has in it.
Sizes sizesOf(const std::filesystem::path& directory) {
    Sizes sizes;
    WordIndex index;
    const DocumentDecoder decoder(TextEncoding::codePage());
    PageWords words(decoder, index);
    for (const FileBytes& file : filesBelow(directory)) {
        const std::string name = file.name.filename().string();
        if (name.starts_with("report_dtl")) {
            sizes.pages += file.bytes.size();
            const std::string_view page = file.bytes;
            index.startPage(static_cast<std::uint32_t>(index.pairs()));
            words.read({&page, 1});
        } else if (name.starts_with("word") || name == "index.js") {
            sizes.index += file.bytes.size();
        }
    }
    sizes.pairs = index.pairs();
    return sizes;
}

/// The driver alone. "ratio_cpu": with the navigator by without it. "share": the index by the
/// pages' bytes. "bytes_per_pair": memory that the navigator adds, the words among it, by (word,
/// page) pairs.
void navigatorReport(benchmark::State& state) {
    const auto pages = static_cast<std::size_t>(state.range(0));
    varied_report::prepare();
    std::vector<Seconds> with;
    std::vector<Seconds> without;
    double memoryWith = 0;
    double memoryWithout = 0;
    std::filesystem::path last;
    for ([[maybe_unused]] auto _ : state) {
        const Run off = runReport(freshDirectory(Place::memory), pages, "false");
        last = freshDirectory(Place::memory);
        const Run on = runReport(last, pages, "true");
        without.push_back(off.seconds);
        with.push_back(on.seconds);
        memoryWithout = off.peakMemory;
        memoryWith = on.peakMemory;
        state.SetIterationTime(on.seconds.clock);
    }
    const Sizes sizes = sizesOf(last);
    const double withoutCpu = median(without).processor;
    const double withCpu = median(with).processor;
    state.counters["ratio_cpu"] = withCpu / withoutCpu;
    state.counters["ratio"] = median(with).clock / median(without).clock;
    state.counters["goal"] = 1.5;
    state.counters["us_per_page"] = withCpu * 1e6 / static_cast<double>(pages);
    state.counters["index_us_per_page"] = (withCpu - withoutCpu) * 1e6 / static_cast<double>(pages);
    state.counters["MB"] = static_cast<double>(sizes.pages) / 1e6;
    state.counters["share"] = static_cast<double>(sizes.index) / static_cast<double>(sizes.pages);
    state.counters["bytes_per_pair"] =
        (memoryWith - memoryWithout) * 1048576 / static_cast<double>(sizes.pairs);
    state.counters["pairs_per_page"] =
        static_cast<double>(sizes.pairs) / static_cast<double>(pages);
}
BENCHMARK(navigatorReport)
    ->Arg(1'000)
    ->Arg(10'000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(navigatorReport)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

ChildRun runTool(const std::string& stream, const std::string& navigator) {
    const std::filesystem::path directory = freshDirectory(Place::disk);
    settle(Place::disk);
    const ChildRun run =
        runChild({DOCHTML_REPLAY_TOOL, "--quiet", "--install-dir", DOCHTML_SUPPORT_DIR, "--set",
                  "Html.ScriptNavigator=" + navigator, "--output",
                  (directory / "report.htm").string(), stream});
    if (!run.succeeded) {
        throw std::runtime_error("the replay tool failed");
    }
    return run;
}

/// The replay tool as a process, with pages on disk. "ratio", "ratio_cpu": with the navigator by
/// without it.
void navigatorWholeRun(benchmark::State& state) {
    const auto pages = static_cast<std::size_t>(state.range(0));
    const std::filesystem::path stream = freshDirectory(Place::memory) / "report.jsonl";
    std::ofstream(stream, std::ios::binary) << varied_report::stream(pages);
    std::vector<Seconds> with;
    std::vector<Seconds> without;
    for ([[maybe_unused]] auto _ : state) {
        without.push_back(runTool(stream.string(), "false").seconds);
        with.push_back(runTool(stream.string(), "true").seconds);
        state.SetIterationTime(with.back().clock);
    }
    state.counters["ratio_cpu"] = median(with).processor / median(without).processor;
    state.counters["ratio"] = median(with).clock / median(without).clock;
    state.counters["goal"] = 1.5;
    state.counters["us_per_page"] = median(with).processor * 1e6 / static_cast<double>(pages);
}
BENCHMARK(navigatorWholeRun)
    ->Arg(1'000)
    ->Arg(10'000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
