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

TEST(CodePage, HoldsNoOtherUnit) {
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

TEST(CodePage, AppendsBehindWhatIsThere) {
    std::string out = "\xE9";
    code_page::appendNarrowed(out, u"\u20AC");
    code_page::appendNarrowed(out, u"a");
    code_page::appendNarrowed(out, u"");
    EXPECT_EQ(out,
              "\xE9\x80"
              "a");
}

TEST(Utf8, HasOneToFourBytesACharacter) {
    EXPECT_EQ(code_page::toUtf8(u"a\u00E9\u20AC\U0001F600"),
              "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(code_page::fromUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"),
              u"a\u00E9\u20AC\U0001F600");
}

TEST(Utf8, HoldsTheEdgesOfEveryLength) {
    for (const std::u16string_view text : {u"\x7F", u"\x80", u"\u07FF", u"\u0800", u"\uD7FF",
                                           u"\uE000", u"\uFFFF", u"\U00010000", u"\U0010FFFF"}) {
        EXPECT_EQ(code_page::fromUtf8(code_page::toUtf8(text)), text);
    }
    EXPECT_EQ(code_page::fromUtf8(std::string_view("\0", 1)), std::u16string(1, u'\0'));
}

TEST(Utf8, GetsAReplacementForALoneSurrogate) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(code_page::toUtf8(std::u16string_view(u"\xD800")), replacement);
    EXPECT_EQ(code_page::toUtf8(std::u16string_view(u"\xDC00")), replacement);
    EXPECT_EQ(code_page::toUtf8(std::u16string_view(u"\xD800x")), std::string(replacement) + "x");
    EXPECT_EQ(code_page::toUtf8(std::u16string_view(u"\xDC00\xD800")),
              std::string(replacement) + std::string(replacement));
}

TEST(Utf8, GetsAReplacementForEachMalformedByte) {
    const std::u16string one = u"\uFFFD";
    EXPECT_EQ(code_page::fromUtf8("\x80"), one);
    EXPECT_EQ(code_page::fromUtf8("\xFF"), one);
    EXPECT_EQ(code_page::fromUtf8("\xC3"), one);
    EXPECT_EQ(code_page::fromUtf8("\xC3("), one + u"(");
    EXPECT_EQ(code_page::fromUtf8("\xE2\x82"), one + one);
    EXPECT_EQ(code_page::fromUtf8("\xE2\x82x"), one + one + u"x");
    EXPECT_EQ(code_page::fromUtf8("\xF0\x9F\x98x"), one + one + one + u"x");
}

TEST(Utf8, DoesNotTakeAnOverlongFormASurrogateOrWhatLiesBeyond) {
    const std::u16string one = u"\uFFFD";
    EXPECT_EQ(code_page::fromUtf8("\xC0\x80"), one + one);
    EXPECT_EQ(code_page::fromUtf8("\xC1\xBF"), one + one);
    EXPECT_EQ(code_page::fromUtf8("\xE0\x9F\xBF"), one + one + one);
    EXPECT_EQ(code_page::fromUtf8("\xF0\x8F\xBF\xBF"), one + one + one + one);
    EXPECT_EQ(code_page::fromUtf8("\xED\xA0\x80"), one + one + one);
    EXPECT_EQ(code_page::fromUtf8("\xF4\x90\x80\x80"), one + one + one + one);
    EXPECT_EQ(code_page::fromUtf8("\xF5\x80\x80\x80"), one + one + one + one);
}

TEST(Utf8Property, GivesAnyWellFormedTextBack) {
    std::mt19937 random(3);
    for (int i = 0; i < 5000; ++i) {
        std::u16string text;
        for (std::size_t length = random() % 20; length > 0; --length) {
            const auto point = static_cast<char32_t>(random() % 0x110000);
            if (point >= 0x10000) {
                text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
                text.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
            } else if (point < 0xD800 || point > 0xDFFF) {
                text.push_back(static_cast<char16_t>(point));
            }
        }
        ASSERT_EQ(code_page::fromUtf8(code_page::toUtf8(text)), text);
    }
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
        ASSERT_EQ(code_page::toUtf8(code_page::fromUtf8(code_page::toUtf8(units))),
                  code_page::toUtf8(units));
        const std::u16string read = code_page::fromUtf8(bytes);
        ASSERT_EQ(code_page::fromUtf8(code_page::toUtf8(read)), read);
    }
}

}  // namespace
}  // namespace quillmark
