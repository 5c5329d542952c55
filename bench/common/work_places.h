#pragma once

#include <filesystem>

namespace quillmark::bench {

/// Where a benchmark writes: a disk file system or one in memory.
enum class Place { disk, memory };

/// A fresh directory on that place. Directories of earlier runs are kept until the program ends:
/// a file system that gives freed inodes out again makes some directories several times slower.
///
/// The disk place is DOCHTML_BENCH_DISK or else the current directory, the memory place
/// DOCHTML_BENCH_MEMORY or else /dev/shm.
[[nodiscard]] std::filesystem::path freshDirectory(Place place);

/// Lets a disk finish what earlier runs left to it, and hands back the memory that they used, so
/// that every run begins alike.
void settle(Place place);

}  // namespace quillmark::bench
