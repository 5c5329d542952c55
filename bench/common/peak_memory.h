#pragma once

namespace quillmark::bench {

/// Starts a new measurement: what was the most so far is forgotten, free memory given back.
void resetPeakMemory();

/// The most memory in use since then, in MiB, beyond what was in use when it started.
[[nodiscard]] double peakMemoryGrowth();

}  // namespace quillmark::bench
