#include "measure.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "driver/doc_html.h"
#include "peak_memory.h"

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

}  // namespace

double secondsOfDocument(const fs::path& directory, Body body, std::size_t size) {
    const std::u16string fileName = (directory / "report.htm").u16string();
    const fs::path before = fs::current_path();
    const double seconds = secondsOf([&] {
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

double secondsOfPlainFiles(const fs::path& directory, const std::vector<FileBytes>& files) {
    for (const FileBytes& file : files) {
        fs::create_directories((directory / file.name).parent_path());
    }
    return secondsOf([&] {
        for (const FileBytes& file : files) {
            writePlainly(directory / file.name, file.bytes);
        }
    });
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

double documentAgainstFloor(benchmark::State& state, Place place, Body body, std::size_t size) {
    const fs::path warmUp = freshDirectory(place);
    resetPeakMemory();
    static_cast<void>(secondsOfDocument(warmUp, body, size));
    const double peak = peakMemoryGrowth();
    const std::vector<FileBytes> files = filesBelow(warmUp);

    std::vector<double> documents;
    std::vector<double> floors;
    for ([[maybe_unused]] auto _ : state) {
        settle();
        floors.push_back(secondsOfPlainFiles(freshDirectory(place), files));
        settle();
        documents.push_back(secondsOfDocument(freshDirectory(place), body, size));
        state.SetIterationTime(documents.back());
    }

    std::size_t bytes = 0;
    for (const FileBytes& file : files) {
        bytes += file.bytes.size();
    }
    const double seconds = median(documents);
    state.counters["ratio"] = seconds / median(floors);
    state.counters["floor_s"] = median(floors);
    state.counters["files"] = static_cast<double>(files.size());
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
    state.counters["peak_MiB"] = peak;
    state.counters["us_per_unit"] = seconds * 1e6 / static_cast<double>(size);
    return seconds;
}

void documentDoubled(benchmark::State& state, Body body, std::size_t size) {
    std::vector<double> halves;
    for (int run = 0; run < 3; ++run) {
        halves.push_back(secondsOfDocument(freshDirectory(Place::memory), body, size / 2));
    }
    const double whole = documentAgainstFloor(state, Place::memory, body, size);
    state.counters["doubling"] = whole / median(halves);
}

}  // namespace quillmark::bench
