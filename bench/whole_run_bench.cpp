// A report through the replay tool: the whole run as a process, and the same stream in stages. All
// are compared with a plain loop that writes the same files.

#include <fstream>
#include <stdexcept>

#include "common/bench_settings.h"
#include "common/child_process.h"
#include "common/measure.h"
#include "common/pages_go_nowhere.h"
#include "common/report_stream.h"
#include "component/object/document_object.h"
#include "driver/doc_html.h"
#include "replay/input/call_stream_reader.h"
#include "replay/play/component_document.h"
#include "replay/play/player.h"

namespace quillmark::bench {

namespace {

namespace fs = std::filesystem;

std::string streamFile(std::size_t pages) {
    const fs::path file = freshDirectory(Place::memory) / "report.jsonl";
    std::ofstream(file, std::ios::binary) << reportStream(pages);
    return file.string();
}

ChildRun runTool(const std::string& stream, const fs::path& directory) {
    const ChildRun run = runChild(
        {DOCHTML_REPLAY_TOOL, "--quiet", "--output", (directory / "report.htm").string(), stream});
    if (!run.succeeded) {
        throw std::runtime_error("the replay tool failed");
    }
    return run;
}

/// Measures `stage` and the floor of the whole report in turn.
template <typename Stage>
void stageAgainstFloor(benchmark::State& state, Place place, const std::string& stream,
                       const Stage& stage) {
    const fs::path warmUp = freshDirectory(place);
    static_cast<void>(runTool(stream, warmUp));
    const std::vector<FileBytes> files = filesBelow(warmUp);
    std::vector<Seconds> stages;
    std::vector<Seconds> floors;
    for ([[maybe_unused]] auto _ : state) {
        settle(place);
        floors.push_back(secondsOfPlainFiles(freshDirectory(place), files));
        settle(place);
        stages.push_back(stage());
        state.SetIterationTime(stages.back().clock);
    }
    const Seconds floor = median(floors);
    state.counters["ratio"] = median(stages).clock / floor.clock;
    state.counters["ratio_cpu"] = median(stages).processor / floor.processor;
    state.counters["floor_ms"] = floor.clock * 1e3;
    state.counters["files"] = static_cast<double>(files.size());
}

void runsOfTheTool(benchmark::State& state, Place place) {
    const std::string stream = streamFile(static_cast<std::size_t>(state.range(0)));
    stageAgainstFloor(state, place, stream,
                      [&] { return runTool(stream, freshDirectory(place)).seconds; });
}

void wholeRun(benchmark::State& state) {
    runsOfTheTool(state, Place::disk);
    state.counters["goal"] = 2.5;
}

void wholeRunInMemory(benchmark::State& state) {
    runsOfTheTool(state, Place::memory);
}

/// Passes the opened reader of a stream to `use`.
template <typename Use>
void withReader(const std::string& stream, const Use& use) {
    std::ifstream file(stream, std::ios::binary);
    replay::InputBuffer input(file);
    static_cast<void>(replay::detectFormat(input));
    replay::CallStreamReader reader(input);
    use(reader);
}

void stageReading(benchmark::State& state) {
    const std::string stream = streamFile(static_cast<std::size_t>(state.range(0)));
    stageAgainstFloor(state, Place::disk, stream, [&] {
        return secondsOf([&] {
            withReader(stream, [](replay::CallSource& source) {
                replay::Call call;
                while (source.next(call) == replay::ReadResult::call) {
                    benchmark::DoNotOptimize(call);
                }
            });
        });
    });
}

std::unique_ptr<replay::LateBoundDocument> componentDocument() {
    const DocumentMaker maker = []() -> std::unique_ptr<DriverDocument> {
        return std::make_unique<DocHtml>();
    };
    void* object = nullptr;
    if (FAILED(DocumentObject::make(maker, nullptr, IID_IDispatch, &object))) {
        throw std::runtime_error("there is no document object");
    }
    ComPointer<IDispatch> document;
    *document.receive() = static_cast<IDispatch*>(object);
    return std::make_unique<replay::ComponentDocument>(std::move(document));
}

void play(replay::CallSource& source, const fs::path& directory) {
    replay::TraceMonitor trace(false);
    const replay::ExceptionMonitor exceptions({}, {});
    replay::Player::Settings settings;
    settings.makeDocument = &componentDocument;
    settings.startDirectory = directory.string();
    replay::Player player(std::move(settings), {}, trace, exceptions);
    if (!player.play(source)) {
        throw std::runtime_error("the stream is malformed");
    }
}

/// Plays the stream through the component in this process.
Seconds secondsOfPlaying(const std::string& stream, Place place) {
    const fs::path directory = freshDirectory(place);
    const fs::path before = fs::current_path();
    const Seconds seconds = secondsOf(
        [&] { withReader(stream, [&](replay::CallSource& source) { play(source, directory); }); });
    fs::current_path(before);
    return seconds;
}

void stageNowhere(benchmark::State& state) {
    const SettingsInForce settings({});
    const std::string stream = streamFile(static_cast<std::size_t>(state.range(0)));
    stageAgainstFloor(state, Place::disk, stream, [&] {
        const PagesGoNowhere nowhere;
        return secondsOfPlaying(stream, Place::memory);
    });
}

void stageWithPages(benchmark::State& state, Place place) {
    const SettingsInForce settings({});
    const std::string stream = streamFile(static_cast<std::size_t>(state.range(0)));
    stageAgainstFloor(state, place, stream, [&] { return secondsOfPlaying(stream, place); });
}

void stageInMemory(benchmark::State& state) {
    stageWithPages(state, Place::memory);
}

void stageOnDisk(benchmark::State& state) {
    stageWithPages(state, Place::disk);
}

void reportSizes(benchmark::internal::Benchmark* stage) {
    stage->Arg(1'000)->Arg(10'000)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
}

BENCHMARK(wholeRun)->Apply(reportSizes);
BENCHMARK(stageReading)->Apply(reportSizes);
BENCHMARK(stageNowhere)->Apply(reportSizes);
BENCHMARK(stageInMemory)->Apply(reportSizes);
BENCHMARK(stageOnDisk)->Apply(reportSizes);
BENCHMARK(wholeRunInMemory)->Apply(reportSizes);

}  // namespace

}  // namespace quillmark::bench
