#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "common/work_places.h"
#include "driver/boundary/i_document.h"

namespace quillmark::bench {

/// What "doubling" should stay below: a little more than twice the time for twice the size.
inline constexpr double doublingGoal = 2.2;

/// The time that a call takes: on the clock, and on the processor (user and system time), which
/// depends less on other load of the machine.
struct Seconds {
    double clock = 0;
    double processor = 0;
};

/// The processor time of this process so far.
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

/// Makes the calls of a document of that size between its `create` and its `close`.
using Body = void (*)(IDocument& document, std::size_t size);

/// Writes a document into the directory, from creating the object to releasing it.
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

/// A writer that knows every target in advance: it builds each file tag by tag and line by line, as
/// a generating program does, and writes it once.
[[nodiscard]] Seconds secondsOfStreaming(const std::filesystem::path& directory,
                                         const std::vector<FileBytes>& files);

/// The median of each member.
[[nodiscard]] Seconds median(const std::vector<Seconds>& values);

/// Writes the document and then the same files plainly, in every iteration of the benchmark.
/// Counters: "ratio" (document / floor, by the clock), "ratio_cpu" (by processor time), "floor_ms",
/// "files", "MB", "peak_MiB" and "us_per_unit" (per unit of `size`). Returns the files of the
/// document.
std::vector<FileBytes> documentAgainstFloor(benchmark::State& state, Place place, Body body,
                                            std::size_t size);

/// As above, with further counters in processor time: "doubling" (`size` / half of it),
/// "ratio_streaming", and "doubling_blind" and "ratio_blind", which are measured with tags that are
/// known not to be files: they leave out the disk lookup for the target of every link.
void documentDoubled(benchmark::State& state, Place place, Body body, std::size_t size);

}  // namespace quillmark::bench
