#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::fuzzing {

/// Changes inputs that consist of lines: repeats, drops, moves and makes lines, so that whole calls
/// come and go. The fuzzer's own changes work on single bytes.
class LineMutator {
public:
    using Random = std::minstd_rand;
    /// Makes a line of the input's kind, without its line end.
    using Maker = std::function<std::string(Random&)>;

    LineMutator(std::string_view text, unsigned seed);

    /// Makes one to four changes.
    void change(const Maker& makeLine);
    /// Puts lines of another input somewhere.
    void insertFrom(std::string_view other);
    /// Copies the text to `data`, with as many lines as there is room for; returns its size.
    std::size_t write(std::uint8_t* data, std::size_t room) const;

private:
    std::size_t below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random_);
    }
    void changeOnce(const Maker& makeLine);

    Random random_;
    std::vector<std::string> lines_;
};

}  // namespace quillmark::fuzzing
