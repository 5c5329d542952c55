// A sample of what the target "fault_sweep" walks completely.

#include <gtest/gtest.h>

#include <algorithm>

#include "faults/fault_run.h"

namespace quillmark::testing {
namespace {

/// The number of positions per stream, player and kind of failure.
constexpr std::size_t samples = 3;

class MemoryRunsOut : public ::testing::TestWithParam<Player> {
protected:
    static void sweep(AllocationFailure::Mode mode) {
        FaultRun run;
        std::size_t offset = 0;
        for (const CallStream& stream : run.streams()) {
            const std::size_t allocations = run.prepare(stream, GetParam());
            ASSERT_GT(allocations, samples) << stream.name;
            const std::size_t step = allocations / samples;
            // Other places in each stream.
            offset = (offset * 7 + 13) % step;
            for (std::size_t position = offset + 1; position <= allocations; position += step) {
                EXPECT_EQ(run.play(position, mode), "") << stream.name << ", " << position;
            }
        }
    }
};

TEST_P(MemoryRunsOut, OnceCostsOneOutputAtMost) {
    sweep(AllocationFailure::Mode::once);
}

TEST_P(MemoryRunsOut, ForGoodEndsNothingButTheDocument) {
    sweep(AllocationFailure::Mode::forGood);
}

INSTANTIATE_TEST_SUITE_P(In, MemoryRunsOut,
                         ::testing::Values(Player::driver, Player::component, Player::tool),
                         [](const ::testing::TestParamInfo<Player>& info) {
                             return std::string(nameOf(info.param));
                         });

}  // namespace
}  // namespace quillmark::testing
