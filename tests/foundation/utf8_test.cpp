#include "foundation/utf8.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace quillmark {
namespace {

constexpr auto malformed = utf8::LoneSurrogates::malformed;
constexpr auto accepted = utf8::LoneSurrogates::accepted;

std::optional<std::u16string> strictlyDecoded(std::string_view text,
                                              utf8::LoneSurrogates loneSurrogates = malformed) {
    std::u16string units(text.size(), u'\0');
    const char16_t* const end = utf8::decodeStrictly(text, units.data(), loneSurrogates);
    if (end == nullptr) {
        return std::nullopt;
    }
    units.resize(static_cast<std::size_t>(end - units.data()));
    return units;
}

TEST(Utf8, HasOneToFourBytesPerCharacter) {
    EXPECT_EQ(utf8::fromUtf16(u"a\u00E9\u20AC\U0001F600"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(utf8::toUtf16("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), u"a\u00E9\u20AC\U0001F600");
}

TEST(Utf8, HoldsTheEdgesOfEveryLength) {
    for (const std::u16string_view text : {u"\x7F", u"\x80", u"\u07FF", u"\u0800", u"\uD7FF",
                                           u"\uE000", u"\uFFFF", u"\U00010000", u"\U0010FFFF"}) {
        EXPECT_EQ(utf8::toUtf16(utf8::fromUtf16(text)), text);
    }
    EXPECT_EQ(utf8::toUtf16(std::string_view("\0", 1)), std::u16string(1, u'\0'));
}

TEST(Utf8, ReplacesALoneSurrogate) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(utf8::fromUtf16(std::u16string_view(u"\xD800")), replacement);
    EXPECT_EQ(utf8::fromUtf16(std::u16string_view(u"\xDC00")), replacement);
    EXPECT_EQ(utf8::fromUtf16(std::u16string_view(u"\xD800x")), std::string(replacement) + "x");
    EXPECT_EQ(utf8::fromUtf16(std::u16string_view(u"\xDC00\xD800")),
              std::string(replacement) + std::string(replacement));
}

TEST(Utf8, ReplacesEachMalformedByte) {
    const std::u16string one = u"\uFFFD";
    EXPECT_EQ(utf8::toUtf16("\x80"), one);
    EXPECT_EQ(utf8::toUtf16("\xFF"), one);
    EXPECT_EQ(utf8::toUtf16("\xC3"), one);
    EXPECT_EQ(utf8::toUtf16("\xC3("), one + u"(");
    EXPECT_EQ(utf8::toUtf16("\xE2\x82"), one + one);
    EXPECT_EQ(utf8::toUtf16("\xE2\x82x"), one + one + u"x");
    EXPECT_EQ(utf8::toUtf16("\xF0\x9F\x98x"), one + one + one + u"x");
}

TEST(Utf8, RejectsOverlongFormsSurrogatesAndCodePointsOutOfRange) {
    const std::u16string one = u"\uFFFD";
    EXPECT_EQ(utf8::toUtf16("\xC0\x80"), one + one);
    EXPECT_EQ(utf8::toUtf16("\xC1\xBF"), one + one);
    EXPECT_EQ(utf8::toUtf16("\xE0\x9F\xBF"), one + one + one);
    EXPECT_EQ(utf8::toUtf16("\xF0\x8F\xBF\xBF"), one + one + one + one);
    EXPECT_EQ(utf8::toUtf16("\xED\xA0\x80"), one + one + one);
    EXPECT_EQ(utf8::toUtf16("\xF4\x90\x80\x80"), one + one + one + one);
    EXPECT_EQ(utf8::toUtf16("\xF5\x80\x80\x80"), one + one + one + one);
}

TEST(Utf8Property, ReturnsAnyWellFormedTextUnchanged) {
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
        ASSERT_EQ(utf8::toUtf16(utf8::fromUtf16(text)), text);
    }
}

TEST(Utf8Property, ConvertsAnyBytesAndUnits) {
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
        ASSERT_EQ(utf8::fromUtf16(utf8::toUtf16(utf8::fromUtf16(units))), utf8::fromUtf16(units));
        const std::u16string read = utf8::toUtf16(bytes);
        ASSERT_EQ(utf8::toUtf16(utf8::fromUtf16(read)), read);
    }
}

TEST(StrictUtf8, DecodesWellFormedTextAsTheLenientDecoderDoes) {
    constexpr std::string_view text = "eight letters, \xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80!";
    EXPECT_EQ(strictlyDecoded(text), utf8::toUtf16(text));
    EXPECT_EQ(strictlyDecoded(""), u"");
    EXPECT_EQ(strictlyDecoded(std::string_view("\0", 1)), std::u16string(1, u'\0'));
}

TEST(StrictUtf8, StopsAtAMalformedByteWhereverItIs) {
    for (const std::string_view text :
         {"\x80", "\xFF", "\xC3", "\xC3(", "\xE2\x82", "\xC0\x80", "\xE0\x9F\xBF",
          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "eight letters and \xFF"}) {
        EXPECT_EQ(strictlyDecoded(text), std::nullopt) << text;
        EXPECT_EQ(strictlyDecoded(text, accepted), std::nullopt) << text;
    }
}

TEST(StrictUtf8, TakesALoneSurrogateOnlyWhenAllowed) {
    EXPECT_EQ(strictlyDecoded("\xED\xA0\x80x"), std::nullopt);
    EXPECT_EQ(strictlyDecoded("\xED\xA0\x80x", accepted), u"\xD800x");
    EXPECT_EQ(strictlyDecoded("\xED\xBF\xBF", accepted), u"\xDFFF");
}

}  // namespace
}  // namespace quillmark
