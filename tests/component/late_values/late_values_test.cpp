// Compares the conversion of every kind of value that a host can pass with one table. On Windows
// the system converts, elsewhere our own code.

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "component/late_values/answers.h"

namespace quillmark::testing {
namespace {

std::vector<ValueRow> table() {
    std::ifstream in(DOCHTML_LATE_VALUES);
    return readValueTable(in);
}

/// The tests may run on Wine, whose answer a row lists separately, or on a correct system.
bool isExpected(const ExpectedAnswer& expected, const std::string& answer) {
#ifdef _WIN32
    return answer == expected.right || answer == expected.systemAnswer();
#else
    return answer == expected.right;
#endif
}

TEST(LateValues, BecomeWhatTheTableSays) {
    for (const ValueRow& row : table()) {
        const auto answers = answersTo(row.type, row.value);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            EXPECT_TRUE(isExpected(row.answers[i], answers[i]))
                << row << "\n  parameter " << i + 1 << " gets " << answers[i];
        }
    }
}

TEST(LateValues, AreDistinctAndOfManyKinds) {
    std::set<std::string> values;
    for (const ValueRow& row : table()) {
        values.insert(row.type + ' ' + row.value);
    }
    EXPECT_EQ(values.size(), table().size()) << "a row occurs twice";
    EXPECT_GE(values.size() * ValueRow::parameterCount, 1500U);
}

TEST(LateValues, HaveAReasonWhereWineDiffersFromWindows) {
    for (const ValueRow& row : table()) {
        bool differs = false;
        for (const ExpectedAnswer& answer : row.answers) {
            differs = differs || !answer.underWine.empty();
            EXPECT_NE(answer.right, answer.underWine) << row;
        }
        EXPECT_EQ(differs, !row.reason.empty()) << row;
    }
}

}  // namespace
}  // namespace quillmark::testing
