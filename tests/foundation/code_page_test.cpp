#include "foundation/code_page.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace quillmark {
namespace {

std::string narrowed(std::u16string_view text) {
    std::string out;
    code_page::appendNarrowed(out, text);
    return out;
}

std::u16string allBytesWidened() {
    std::u16string wide;
    for (char16_t unit = 0; unit < 0x80; ++unit) {
        wide.push_back(unit);
    }
    wide +=
        u"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D"
        u"\u017D\x8F\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
        u"\u0153\x9D\u017E\u0178";
    for (char16_t unit = 0xA0; unit <= 0xFF; ++unit) {
        wide.push_back(unit);
    }
    return wide;
}

std::string allBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(byte)));
    }
    return bytes;
}

TEST(CodePage, HasACharacterForEachOfTheBytes) {
    EXPECT_EQ(code_page::widened(allBytes()), allBytesWidened());
    EXPECT_EQ(narrowed(allBytesWidened()), allBytes());
}

TEST(CodePage, ReplacesEveryOtherUnit) {
    const std::u16string held = allBytesWidened();
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const auto wide = static_cast<char16_t>(unit);
        if (held.find(wide) == std::u16string::npos) {
            ASSERT_EQ(narrowed({&wide, 1}), "?") << unit;
        }
    }
}

TEST(CodePage, GivesEachHalfOfASurrogatePairAQuestionMark) {
    EXPECT_EQ(narrowed(u"a\U0001F600b"), "a??b");
    EXPECT_EQ(narrowed(std::u16string_view(u"\xD800")), "?");
    EXPECT_EQ(narrowed(std::u16string_view(u"\xDC00x")), "?x");
}

TEST(CodePage, AppendsAfterWhatIsThere) {
    std::string out = "\xE9";
    code_page::appendNarrowed(out, u"\u20AC");
    code_page::appendNarrowed(out, u"a");
    code_page::appendNarrowed(out, u"");
    EXPECT_EQ(out,
              "\xE9\x80"
              "a");
}

TEST(CodePageProperty, TakesAnyBytesAndUnits) {
    std::mt19937 random(4);
    for (int i = 0; i < 5000; ++i) {
        std::string bytes(random() % 20, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random());
        }
        std::u16string units(random() % 20, u'\0');
        for (char16_t& unit : units) {
            unit = static_cast<char16_t>(random());
        }
        ASSERT_EQ(narrowed(code_page::widened(bytes)), bytes);
        ASSERT_EQ(narrowed(units).size(), units.size());
    }
}

}  // namespace
}  // namespace quillmark
