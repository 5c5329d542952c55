#include "common/measure.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <iterator>
#include <string_view>

#include "common/peak_memory.h"
#include "common/tags_are_no_files.h"
#include "driver/doc_html.h"

namespace quillmark::bench {

namespace {

namespace fs = std::filesystem;

std::string readFile(const fs::path& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writePlainly(const fs::path& name, const std::string& bytes) {
    const int file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    std::size_t done = 0;
    while (file >= 0 && done < bytes.size()) {
        const ssize_t written = ::write(file, bytes.data() + done, bytes.size() - done);
        if (written <= 0) {
            break;
        }
        done += static_cast<std::size_t>(written);
    }
    ::close(file);
}

/// The same text, put together from pieces that end with a tag or a line.
std::string collectedByPieces(std::string_view text) {
    std::string collected;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(">\n");
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        collected += text.substr(0, length);
        text.remove_prefix(length);
    }
    return collected;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

}  // namespace

double processorSeconds() noexcept {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

Seconds secondsOfDocument(const fs::path& directory, Body body, std::size_t size) {
    const std::u16string fileName = (directory / "report.htm").u16string();
    const fs::path before = fs::current_path();
    const Seconds seconds = secondsOf([&] {
        DocHtml document;
        document.create(fileName);
        body(document, size);
        document.close();
    });
    fs::current_path(before);
    return seconds;
}

std::vector<FileBytes> filesBelow(const fs::path& directory) {
    std::vector<FileBytes> files;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file()) {
            files.push_back({fs::relative(entry.path(), directory), readFile(entry.path())});
        }
    }
    return files;
}

Seconds secondsOfPlainFiles(const fs::path& directory, const std::vector<FileBytes>& files) {
    for (const FileBytes& file : files) {
        fs::create_directories((directory / file.name).parent_path());
    }
    return secondsOf([&] {
        for (const FileBytes& file : files) {
            writePlainly(directory / file.name, file.bytes);
        }
    });
}

Seconds secondsOfStreaming(const fs::path& directory, const std::vector<FileBytes>& files) {
    for (const FileBytes& file : files) {
        fs::create_directories((directory / file.name).parent_path());
    }
    return secondsOf([&] {
        for (const FileBytes& file : files) {
            writePlainly(directory / file.name, collectedByPieces(file.bytes));
        }
    });
}

Seconds median(const std::vector<Seconds>& values) {
    std::vector<double> clock;
    std::vector<double> processor;
    for (const Seconds& value : values) {
        clock.push_back(value.clock);
        processor.push_back(value.processor);
    }
    return {median(clock), median(processor)};
}

std::vector<FileBytes> documentAgainstFloor(benchmark::State& state, Place place, Body body,
                                            std::size_t size) {
    const fs::path warmUp = freshDirectory(place);
    resetPeakMemory();
    static_cast<void>(secondsOfDocument(warmUp, body, size));
    const double peak = peakMemoryGrowth();
    std::vector<FileBytes> files = filesBelow(warmUp);

    std::vector<Seconds> documents;
    std::vector<Seconds> floors;
    for ([[maybe_unused]] auto _ : state) {
        settle(place);
        floors.push_back(secondsOfPlainFiles(freshDirectory(place), files));
        settle(place);
        documents.push_back(secondsOfDocument(freshDirectory(place), body, size));
        state.SetIterationTime(documents.back().clock);
    }

    std::size_t bytes = 0;
    for (const FileBytes& file : files) {
        bytes += file.bytes.size();
    }
    const Seconds document = median(documents);
    const Seconds floor = median(floors);
    state.counters["ratio"] = document.clock / floor.clock;
    state.counters["ratio_cpu"] = document.processor / floor.processor;
    state.counters["floor_ms"] = floor.clock * 1e3;
    state.counters["files"] = static_cast<double>(files.size());
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
    state.counters["peak_MiB"] = peak;
    state.counters["us_per_unit"] = document.processor * 1e6 / static_cast<double>(size);
    return files;
}

void documentDoubled(benchmark::State& state, Place place, Body body, std::size_t size) {
    const auto secondsOfSize = [&](std::size_t units) {
        settle(place);
        return secondsOfDocument(freshDirectory(place), body, units);
    };
    const std::vector<FileBytes> files = documentAgainstFloor(state, place, body, size);

    // In turn, so that what else the machine does falls on all of them.
    std::vector<Seconds> halves;
    std::vector<Seconds> wholes;
    std::vector<Seconds> blindHalves;
    std::vector<Seconds> blindWholes;
    std::vector<Seconds> streaming;
    for (int run = 0; run < 3; ++run) {
        halves.push_back(secondsOfSize(size / 2));
        wholes.push_back(secondsOfSize(size));
        {
            const TagsAreNoFiles blind;
            blindHalves.push_back(secondsOfSize(size / 2));
            blindWholes.push_back(secondsOfSize(size));
        }
        settle(place);
        streaming.push_back(secondsOfStreaming(freshDirectory(place), files));
    }
    const double whole = median(wholes).processor;
    const double blindWhole = median(blindWholes).processor;
    const double floor = median(streaming).processor;
    state.counters["doubling"] = whole / median(halves).processor;
    state.counters["doubling_blind"] = blindWhole / median(blindHalves).processor;
    state.counters["ratio_streaming"] = whole / floor;
    state.counters["ratio_blind"] = blindWhole / floor;
}

}  // namespace quillmark::bench
