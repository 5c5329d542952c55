#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "driver/boundary/i_document.h"
#include "work_places.h"

namespace quillmark::bench {

/// What a call takes: on the clock, and of the processor (the program and the system for it),
/// which other load on the machine moves less.
struct Seconds {
    double clock = 0;
    double processor = 0;
};

/// The processor's account of this process.
[[nodiscard]] double processorSeconds() noexcept;

template <typename Work>
[[nodiscard]] Seconds secondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    const double processorStart = processorSeconds();
    work();
    const double processor = processorSeconds() - processorStart;
    const auto clock = std::chrono::steady_clock::now() - start;
    return {std::chrono::duration<double>(clock).count(), processor};
}

/// The calls of a document between its `create` and its `close`, of a size.
using Body = void (*)(IDocument& document, std::size_t size);

/// Writes a document into the directory, from making the object to letting it go.
[[nodiscard]] Seconds secondsOfDocument(const std::filesystem::path& directory, Body body,
                                        std::size_t size);

struct FileBytes {
    std::filesystem::path name;
    std::string bytes;
};

/// All files below the directory, with names relative to it.
[[nodiscard]] std::vector<FileBytes> filesBelow(const std::filesystem::path& directory);

/// The floor: a plain loop that opens, writes once and closes each file.
[[nodiscard]] Seconds secondsOfPlainFiles(const std::filesystem::path& directory,
                                          const std::vector<FileBytes>& files);

/// A writer that knows every target in advance: it collects each file tag by tag and line by
/// line, as a program does that generates it, and writes it once.
[[nodiscard]] Seconds secondsOfStreaming(const std::filesystem::path& directory,
                                         const std::vector<FileBytes>& files);

/// The middle one of each.
[[nodiscard]] Seconds median(const std::vector<Seconds>& values);

/// Writes the document and the same files plainly, in turn, for every iteration of the
/// benchmark. Counters: "ratio" (document by floor, on the clock), "ratio_cpu" (of the
/// processor), "floor_ms", "files", "MB", "peak_MiB" and "us_per_unit" (of `size`). Returns the
/// document's files.
std::vector<FileBytes> documentAgainstFloor(benchmark::State& state, Place place, Body body,
                                            std::size_t size);

/// As above, and adds, of the processor: "doubling" (`size` by half of it), "ratio_streaming", and
/// both "blind", with tags that are known to be no files: what is left of them without the looks at
/// the disk for every link's target.
void documentDoubled(benchmark::State& state, Place place, Body body, std::size_t size);

}  // namespace quillmark::bench
