// What files and their names promise on POSIX alone.
#ifndef _WIN32

#include <gtest/gtest.h>

#include <array>

#include "platform/file_system.h"
#include "platform/read_whole.h"

namespace quillmark {
namespace {

/// The memory of the process is a file whose first bytes are there to nobody.
constexpr const char* unreadable = "/proc/self/mem";

TEST(FileOnPosix, TellsAReadThatFailedFromTheEnd) {
    const auto file = FileSystem::native().openForReading(unreadable);
    ASSERT_NE(file, nullptr);
    std::array<char, 4> buffer{};
    EXPECT_EQ(file->read(buffer), 0U);
    EXPECT_TRUE(file->failed());
    EXPECT_EQ(readWhole(unreadable), std::nullopt);
}

}  // namespace
}  // namespace quillmark

#endif
