// The number that a text means, in cases that the table of late-bound values cannot cover.

#include "component/posix/conversion/number_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmark::testing {
namespace {

DecimalValue decimalIn(const std::u16string& text) {
    const auto number = readNumber(text);
    EXPECT_TRUE(number && std::holds_alternative<DecimalValue>(*number));
    return std::get<DecimalValue>(*number);
}

TEST(NumberText, MayHaveAnyNumberOfDigits) {
    const std::u16string zeros(5000, u'0');
    EXPECT_EQ(roundedToWhole(decimalIn(zeros + u"12")), 12);
    EXPECT_EQ(roundedToWhole(decimalIn(u"2.5" + zeros)), 2);
    EXPECT_EQ(roundedToWhole(decimalIn(u"2.5" + zeros + u"1")), 3);
    EXPECT_EQ(roundedToWhole(decimalIn(u"1" + zeros)), std::nullopt);
    EXPECT_EQ(realOf(decimalIn(u"1" + zeros)), std::numeric_limits<double>::infinity());
    EXPECT_EQ(realOf(decimalIn(u"0." + zeros + u"1")), 0.0);
}

TEST(NumberText, MayHaveAnExponentOfAnySize) {
    const std::u16string large = u"99999999999999999999";
    EXPECT_EQ(realOf(decimalIn(u"1e" + large)), std::numeric_limits<double>::infinity());
    EXPECT_EQ(realOf(decimalIn(u"1e-" + large)), 0.0);
    EXPECT_EQ(realOf(decimalIn(u"0e" + large)), 0.0);
    EXPECT_EQ(roundedToWhole(decimalIn(u"1e" + large)), std::nullopt);
    EXPECT_EQ(roundedToWhole(decimalIn(u"1e-" + large)), 0);
}

TEST(NumberText, LimitsABitPatternToTheLargestNumber) {
    const auto number = readNumber(u"&H" + std::u16string(100, u'F'));
    ASSERT_TRUE(number && std::holds_alternative<BitPattern>(*number));
    EXPECT_EQ(std::get<BitPattern>(*number).bits, std::numeric_limits<std::uint64_t>::max());
}

TEST(DecimalValue, IsShownWithAllItsDigits) {
    EXPECT_EQ(shownInFull(decimalOf(false, "0012", 3)), "12000");
    EXPECT_EQ(shownInFull(decimalOf(true, "5", -2)), "-0.05");
    EXPECT_EQ(shownInFull(decimalOf(false, "1200", -2)), "12");
    EXPECT_EQ(shownInFull(decimalOf(true, "000", -2)), "0");
}

}  // namespace
}  // namespace quillmark::testing
