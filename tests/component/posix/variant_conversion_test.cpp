// How numbers become texts on systems without a conversion of their own.

#include <gtest/gtest.h>

#include <limits>

#include "component/object/owned_variant.h"
#include "dochtml/text.h"

namespace quillmark::testing {
namespace {

std::string textOf(const VARIANT& value) {
    VARIANT text;
    VariantInit(&text);
    EXPECT_EQ(convertVariant(text, value, 0, VT_BSTR), S_OK);
    const std::u16string_view units = Text::viewOf(text.bstrVal);
    std::string shown(units.begin(), units.end());
    VariantClear(&text);
    return shown;
}

std::string textOf(double real) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_R8;
    value.dblVal = real;
    return textOf(value);
}

std::string textOf(float real) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_R4;
    value.fltVal = real;
    return textOf(value);
}

TEST(RealNumber, IsShownWithFifteenDigits) {
    EXPECT_EQ(textOf(0.0), "0");
    EXPECT_EQ(textOf(-0.0), "0");
    EXPECT_EQ(textOf(1.0), "1");
    EXPECT_EQ(textOf(-2.5), "-2.5");
    EXPECT_EQ(textOf(0.1 + 0.2), "0.3");
    EXPECT_EQ(textOf(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(textOf(123456789012345.0), "123456789012345");
    EXPECT_EQ(textOf(0.0001), "0.0001");
}

TEST(RealNumber, HasAnExponentWhenItIsVeryLargeOrSmall) {
    EXPECT_EQ(textOf(1e15), "1E+15");
    EXPECT_EQ(textOf(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(textOf(0.00001), "1E-05");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::max()), "-1.79769313486232E+308");
    EXPECT_EQ(textOf(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
}

TEST(RealNumber, MayBeNoNumber) {
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "INF");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::infinity()), "-INF");
    EXPECT_EQ(textOf(std::numeric_limits<double>::quiet_NaN()), "NAN");
}

TEST(ShortRealNumber, IsShownWithSevenDigits) {
    EXPECT_EQ(textOf(0.1F), "0.1");
    EXPECT_EQ(textOf(1.0F / 3), "0.3333333");
    EXPECT_EQ(textOf(16777216.0F), "1.677722E+07");
}

}  // namespace
}  // namespace quillmark::testing
