#include "platform/argument_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmark {
namespace {

using List = std::vector<std::string>;

TEST(ArgumentText, IsSplitAtBlanks) {
    EXPECT_EQ(splitArguments("-m -q  -j"), (List{"-m", "-q", "-j"}));
    EXPECT_EQ(splitArguments("  a\tb "), (List{"a", "b"}));
    EXPECT_EQ(splitArguments(""), List{});
    EXPECT_EQ(splitArguments("  "), List{});
}

TEST(ArgumentText, KeepsBlanksInsideDoubleQuotes) {
    EXPECT_EQ(splitArguments("-j \"C:\\my out\\a.zip\" \"b c\""),
              (List{"-j", "C:\\my out\\a.zip", "b c"}));
    EXPECT_EQ(splitArguments("a\" \"b"), List{"a b"});
    EXPECT_EQ(splitArguments("\"\""), List{""});
}

TEST(ArgumentText, MayLeaveItsLastQuoteOpen) {
    EXPECT_EQ(splitArguments("a \"b c"), (List{"a", "b c"}));
}

TEST(ArgumentText, KnowsNoOtherQuotesAndNoEscapes) {
    EXPECT_EQ(splitArguments("'a b' \\\"c\\\" d"), (List{"'a", "b'", "\\c\\", "d"}));
}

}  // namespace
}  // namespace quillmark
