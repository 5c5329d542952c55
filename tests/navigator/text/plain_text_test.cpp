#include "navigator/text/plain_text.h"

#include <gtest/gtest.h>

#include "foundation/utf8.h"
#include "navigator/utf8_decoder.h"

namespace quillmark {

namespace {

std::string plain(std::string_view html) {
    return utf8::fromUtf16(plain_text::ofHtml(html, testing::Utf8Decoder()));
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all.append(text);
    }
    return all;
}

TEST(PlainText, DecodesReferencesOnce) {
    EXPECT_EQ(plain("a&amp;lt;b &lt;i&gt; &#38;#60;"), "a&lt;b <i> &#60;");
}

TEST(PlainText, KeepsWhatIsNotAReference) {
    EXPECT_EQ(plain("&eacute; &amp &#; &#x; &#xg; & <"), "&eacute; &amp &#; &#x; &#xg; & <");
}

TEST(PlainText, HugeReferencesAreReplacementCharacters) {
    EXPECT_EQ(plain("&#99999999999999999999;&#x110000;&#xDFFF;"),
              "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(PlainText, JoinsBlanksAndLineBreaks) {
    EXPECT_EQ(plain(" \t a<BR>\n&nbsp;b\x7F "), "a b");
}

TEST(PlainText, TextOfTheFullLengthStays) {
    EXPECT_EQ(plain(repeated("\xF0\x9F\x98\x80", 200)), repeated("\xF0\x9F\x98\x80", 200));
}

TEST(PlainText, LongerTextIsCutWithAnEllipsis) {
    EXPECT_EQ(plain(repeated("\xF0\x9F\x98\x80", 201)),
              repeated("\xF0\x9F\x98\x80", 199) + "\xE2\x80\xA6");
}

TEST(PlainText, BlanksAtTheEndDoNotCountForTheLength) {
    EXPECT_EQ(plain(repeated("a", 200) + "  "), repeated("a", 200));
}

}  // namespace

}  // namespace quillmark
