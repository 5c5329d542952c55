#pragma once

#include <cstddef>

namespace quillmark {

/// Bounds the indentation that one output may get altogether.
///
/// A level is whatever number stands in a style's name: "Heading 2000000000" is a level. Written
/// as it stands, one such entry would fill gigabytes with blanks. An output may have 256 MiB of
/// indentation (100,000 entries at level 150 are within it); an indentation that does not fit
/// into what is left is left out whole, and the entry itself is written as always.
class IndentBudget {
public:
    static constexpr std::size_t total = std::size_t{256} * 1024 * 1024;

    /// How often a unit of `unitBytes` is to be written for an indentation of `units`: as often
    /// as asked, or not at all. `unitBytes` must not be 0.
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
