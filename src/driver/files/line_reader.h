#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "platform/files/file_system.h"
#include "platform/text_encoding.h"

namespace quillmark {

/// Reads a text file line by line, however long the file is.
///
/// A carriage return before a line feed is dropped. A line longer than `longest` characters is
/// read as several lines. A line end at the end of the file does not start another line. A read
/// error is treated as the end of the file.
class LineReader {
public:
    static constexpr std::size_t longest = 2000;

    /// The file is in that encoding. Its byte order mark is not part of the first line.
    LineReader(InputFile& file, const TextEncoding& encoding)
        : file_(file), encoding_(encoding), ahead_(firstCharacter()) {}

    /// Reads the next line into `line`, without its end. Returns false after the last line.
    [[nodiscard]] bool next(std::string& line);

private:
    static constexpr int endOfFile = -1;

    [[nodiscard]] int firstCharacter();
    /// The next byte of the file, without consuming it.
    [[nodiscard]] int peekByte();
    /// Consumes the next character. A carriage return with a line feed counts as one.
    int readCharacter();

    InputFile& file_;
    const TextEncoding& encoding_;
    std::array<char, 16384> buffer_{};
    std::size_t pos_ = 0;
    std::size_t filled_ = 0;
    int ahead_;
};

}  // namespace quillmark
