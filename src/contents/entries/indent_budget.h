#pragma once

#include <cstddef>

namespace quillmark {

/// Limits the total indentation of one output.
///
/// A level is any number in a style's name, so "Heading 2000000000" is possible. Its indentation
/// would take gigabytes. An output may have 256 MiB of indentation, enough for 100,000 entries at
/// level 150. An entry whose indentation exceeds what is left is written without indentation.
class IndentBudget {
public:
    static constexpr std::size_t total = std::size_t{256} * 1024 * 1024;

    /// Returns how many units to write for an indentation of `units` units with `unitBytes` bytes
    /// each: either `units` or 0. `unitBytes` must not be 0.
    [[nodiscard]] std::size_t take(std::size_t units, std::size_t unitBytes) noexcept {
        if (units > left_ / unitBytes) {
            return 0;
        }
        left_ -= units * unitBytes;
        return units;
    }

private:
    std::size_t left_ = total;
};

}  // namespace quillmark
