#include "contents/entries/indent_budget.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmark {
namespace {

TEST(IndentBudget, GrantsWhatFits) {
    IndentBudget budget;
    EXPECT_EQ(budget.take(0, 3), 0U);
    EXPECT_EQ(budget.take(49, 18), 49U);
    EXPECT_EQ(budget.take(1000, 3), 1000U);
}

TEST(IndentBudget, GrantsEverythingExactlyOnce) {
    IndentBudget budget;
    EXPECT_EQ(budget.take(IndentBudget::total, 1), IndentBudget::total);
    EXPECT_EQ(budget.take(1, 1), 0U);
    EXPECT_EQ(budget.take(0, 1), 0U);
}

TEST(IndentBudget, IsNotUsedUpByAnIndentationThatDoesNotFit) {
    IndentBudget budget;
    EXPECT_EQ(budget.take(std::numeric_limits<std::size_t>::max(), 18), 0U);
    EXPECT_EQ(budget.take(1'999'999'999, 18), 0U);
    EXPECT_EQ(budget.take(2, 18), 2U);
}

}  // namespace
}  // namespace quillmark
