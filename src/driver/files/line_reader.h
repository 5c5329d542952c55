#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "platform/file_system.h"

namespace quillmark {

/// Reads a text file line by line, however long the file is.
///
/// A carriage return in front of a line feed is dropped. A line longer than `longest` bytes is
/// read as several lines. A line end at the end of the file starts no further line. Where a read
/// fails the file ends: what came before it is kept.
class LineReader {
public:
    static constexpr std::size_t longest = 2000;

    explicit LineReader(InputFile& file) : file_(file), ahead_(readCharacter()) {}

    /// Puts the next line, without its end, into `line`. False behind the last one.
    [[nodiscard]] bool next(std::string& line);

private:
    static constexpr int endOfFile = -1;

    /// The next byte of the file, left there.
    [[nodiscard]] int peekByte();
    /// The next character, taken: a line end of two bytes is one.
    int readCharacter();

    InputFile& file_;
    std::array<char, 16384> buffer_{};
    std::size_t pos_ = 0;
    std::size_t filled_ = 0;
    int ahead_;
};

}  // namespace quillmark
