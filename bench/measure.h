#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "driver/i_document.h"
#include "work_places.h"

namespace quillmark::bench {

/// Seconds that a call takes.
template <typename Work>
[[nodiscard]] double secondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The calls of a document between its `create` and its `close`, of a size.
using Body = void (*)(IDocument& document, std::size_t size);

/// Writes a document into the directory, from making the object to letting it go.
[[nodiscard]] double secondsOfDocument(const std::filesystem::path& directory, Body body,
                                       std::size_t size);

struct FileBytes {
    std::filesystem::path name;
    std::string bytes;
};

/// All files below the directory, with names relative to it.
[[nodiscard]] std::vector<FileBytes> filesBelow(const std::filesystem::path& directory);

/// The floor: a plain loop that opens, writes once and closes each file.
[[nodiscard]] double secondsOfPlainFiles(const std::filesystem::path& directory,
                                         const std::vector<FileBytes>& files);

/// The middle one.
[[nodiscard]] double median(std::vector<double> values);

/// Writes the document and the same files plainly, in turn, for every iteration of the
/// benchmark, and reports the counters "ratio" (document by floor), "floor_s", "MB" and
/// "us_per_unit" (of `size`). Returns the document's median seconds.
double documentAgainstFloor(benchmark::State& state, Place place, Body body, std::size_t size);

/// As above, in memory, and adds "doubling": the seconds for `size` by those for half of it.
void documentDoubled(benchmark::State& state, Body body, std::size_t size);

}  // namespace quillmark::bench
