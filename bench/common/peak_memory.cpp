#include "common/peak_memory.h"

#include <malloc.h>

#include <fstream>
#include <string>

namespace quillmark::bench {

namespace {

double baseline = 0;

/// A line of the kernel's account of this process, in MiB.
double accountOf(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key)) {
            return std::stod(line.substr(key.size() + 1)) / 1024.0;
        }
    }
    return 0;
}

}  // namespace

void resetPeakMemory() {
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
    baseline = accountOf("VmRSS");
}

double peakMemoryGrowth() {
    return accountOf("VmHWM") - baseline;
}

}  // namespace quillmark::bench
