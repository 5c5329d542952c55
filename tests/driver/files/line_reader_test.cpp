#include "driver/files/line_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/failing_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

/// A file of given bytes that returns a few at a time.
class TextInput : public InputFile {
public:
    TextInput(std::string bytes, std::size_t piece) : bytes_(std::move(bytes)), piece_(piece) {}

    std::size_t read(std::span<char> buffer) override {
        const std::size_t taken = std::min({piece_, buffer.size(), bytes_.size() - place_});
        std::copy_n(bytes_.data() + place_, taken, buffer.data());
        place_ += taken;
        return taken;
    }

private:
    std::string bytes_;
    std::size_t piece_;
    std::size_t place_ = 0;
};

std::vector<std::string> linesOf(const std::string& bytes, std::size_t piece = 100000) {
    TextInput input(bytes, piece);
    LineReader reader(input, TextEncoding::codePage());
    std::vector<std::string> lines;
    for (std::string line; reader.next(line);) {
        lines.push_back(line);
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, CutsAtLineFeeds) {
    EXPECT_EQ(linesOf("a\n\nb"), (Lines{"a", "", "b"}));
}

TEST(LineReader, StartsNoLineAfterTheLastLineFeed) {
    EXPECT_EQ(linesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("\n"), (Lines{""}));
    EXPECT_EQ(linesOf("\n\n"), (Lines{"", ""}));
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(LineReader, DropsACarriageReturnBeforeALineFeed) {
    EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\r\r\nb"), (Lines{"a\r", "b"}));
}

TEST(LineReader, KeepsAnyOtherCarriageReturn) {
    EXPECT_EQ(linesOf("a\rb\r"), (Lines{"a\rb\r"}));
}

TEST(LineReader, SeesALineEndAcrossTwoReads) {
    for (std::size_t piece = 1; piece < 5; ++piece) {
        EXPECT_EQ(linesOf("a\r\nbc\r\n\r\nd", piece), (Lines{"a", "bc", "", "d"})) << piece;
    }
}

TEST(LineReader, CutsALongLine) {
    const std::string longest(2000, 'x');
    EXPECT_EQ(linesOf(longest), (Lines{longest}));
    EXPECT_EQ(linesOf(longest + "\n"), (Lines{longest}));
    EXPECT_EQ(linesOf(longest + "\r\ny"), (Lines{longest, "y"}));
    EXPECT_EQ(linesOf(longest + "y"), (Lines{longest, "y"}));
    EXPECT_EQ(linesOf(longest + longest + "y\nz"), (Lines{longest, longest, "y", "z"}));
}

TEST(LineReader, KeepsWhatCameBeforeAFailure) {
    MemoryFileSystem memory;
    FailingFileSystem files(memory);
    std::string bytes;
    for (int i = 0; i < 5000; ++i) {
        bytes += "12345\n";
    }
    memory.put("a.txt", bytes);
    files.failAt(FailingFileSystem::Operation::read, 2);
    const auto file = files.openForReading("a.txt");
    LineReader reader(*file, TextEncoding::codePage());
    Lines lines;
    for (std::string line; reader.next(line);) {
        lines.push_back(line);
    }
    EXPECT_TRUE(file->failed());
    Lines expected(16384 / 6, "12345");
    expected.emplace_back("1234");
    EXPECT_EQ(lines, expected);
}

TEST(LineReader, KeepsEveryOtherByte) {
    const std::string bytes("\0\x1a\xff\t", 4);
    EXPECT_EQ(linesOf(bytes), (Lines{bytes}));
}

TEST(LineReader, ReadsAFileLargerThanItsBuffer) {
    std::string bytes;
    Lines expected;
    for (int i = 0; i < 20000; ++i) {
        expected.push_back(std::to_string(i));
        bytes += expected.back() + "\r\n";
    }
    EXPECT_EQ(linesOf(bytes), expected);
    EXPECT_EQ(linesOf(bytes, 7), expected);
}

}  // namespace
}  // namespace quillmark
