#pragma once

#include <string>
#include <vector>

#include "common/measure.h"

namespace quillmark::bench {

struct ChildRun {
    bool succeeded = false;
    Seconds seconds;
};

/// Runs a program to its end. The first argument is the program's file.
[[nodiscard]] ChildRun runChild(const std::vector<std::string>& arguments);

}  // namespace quillmark::bench
