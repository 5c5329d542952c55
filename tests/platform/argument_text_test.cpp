#include "platform/argument_text.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(ArgumentText, IsJoinedWithBlanks) {
    EXPECT_EQ(joinedArguments({}), "");
    EXPECT_EQ(joinedArguments({"-m", "C:\\out\\a.zip"}), "-m C:\\out\\a.zip");
}

TEST(ArgumentText, QuotesWhatHoldsBlanksOrNothing) {
    EXPECT_EQ(joinedArguments({"-j", "C:\\my out\\a.zip", ""}), "-j \"C:\\my out\\a.zip\" \"\"");
    EXPECT_EQ(joinedArguments({"a\tb"}), "\"a\tb\"");
}

TEST(ArgumentText, KeepsAQuoteInsideItsArgument) {
    EXPECT_EQ(joinedArguments({"a\" -T \"b"}), "\"a\\\" -T \\\"b\"");
}

TEST(ArgumentText, DoublesBackslashesBeforeAQuoteOnly) {
    EXPECT_EQ(joinedArguments({"a b\\"}), "\"a b\\\\\"");
    EXPECT_EQ(joinedArguments({"a\\\"b"}), "\"a\\\\\\\"b\"");
    EXPECT_EQ(joinedArguments({"a\\ b"}), "\"a\\ b\"");
}

}  // namespace
}  // namespace quillmark
