// What it costs that a page is written whole or not at all, against a plain loop that creates or
// truncates the same files: in a fresh directory, and over the files of an earlier run.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "common/measure.h"
#include "platform/files/drive_table.h"
#include "platform/files/sys_file.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t fileCount = 2000;
constexpr std::size_t fileSize = 8192;

std::vector<FileBytes> pages() {
    std::vector<FileBytes> files;
    for (std::size_t i = 0; i < fileCount; ++i) {
        files.push_back({"page" + std::to_string(i) + ".htm", std::string(fileSize, 'x')});
    }
    return files;
}

Seconds secondsOfWholeFiles(const std::filesystem::path& directory,
                            const std::vector<FileBytes>& files) {
    const OrxString dir = driverPath(directory.string());
    return secondsOf([&] {
        for (const FileBytes& file : files) {
            const std::array<std::string_view, 1> piece = {file.bytes};
            benchmark::DoNotOptimize(
                SysFile::writeWhole(SysFile::appendToDir(dir, file.name.string()), piece));
        }
    });
}

/// The first run of each in its directory is measured as "fresh", the next as "existing". The one
/// that goes first alternates.
void wholeFiles(benchmark::State& state) {
    const auto place = static_cast<Place>(state.range(0));
    const std::vector<FileBytes> files = pages();
    std::array<std::vector<Seconds>, 2> whole;
    std::array<std::vector<Seconds>, 2> plain;
    bool wholeFirst = false;
    for ([[maybe_unused]] auto _ : state) {
        const auto wholeDirectory = freshDirectory(place);
        const auto plainDirectory = freshDirectory(place);
        wholeFirst = !wholeFirst;
        for (std::size_t run = 0; run < whole.size(); ++run) {
            for (const bool isWhole : {wholeFirst, !wholeFirst}) {
                settle(place);
                if (isWhole) {
                    whole.at(run).push_back(secondsOfWholeFiles(wholeDirectory, files));
                } else {
                    plain.at(run).push_back(secondsOfPlainFiles(plainDirectory, files));
                }
            }
        }
        state.SetIterationTime(whole[0].back().clock);
    }
    state.counters["ratio_fresh"] = median(whole[0]).clock / median(plain[0]).clock;
    state.counters["ratio_fresh_cpu"] = median(whole[0]).processor / median(plain[0]).processor;
    state.counters["ratio_existing"] = median(whole[1]).clock / median(plain[1]).clock;
    state.counters["ratio_existing_cpu"] = median(whole[1]).processor / median(plain[1]).processor;
}
BENCHMARK(wholeFiles)
    ->UseManualTime()
    ->Arg(static_cast<int>(Place::disk))
    ->Arg(static_cast<int>(Place::memory))
    ->Iterations(9)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
