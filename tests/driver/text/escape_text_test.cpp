#include "driver/text/escape_text.h"

#include <gtest/gtest.h>

#include <random>

namespace quillmark {
namespace {

std::string escaped(std::string_view text, bool passThrough = false) {
    std::string buffer = "left over";
    return std::string(escapeText(text, passThrough, buffer));
}

TEST(EscapeText, MakesATabTwoHardBlanksAndABlank) {
    EXPECT_EQ(escaped("a\tb"), "a&nbsp;&nbsp; b");
    EXPECT_EQ(escaped("\t").size(), 13U);
}

TEST(EscapeText, MakesALineFeedABreak) {
    EXPECT_EQ(escaped("x\ny"), "x<BR>\ny");
    EXPECT_EQ(escaped("\n"), "<BR>\n");
    EXPECT_EQ(escaped("\n\n"), "<BR>\n<BR>\n");
}

TEST(EscapeText, CopiesACarriageReturn) {
    EXPECT_EQ(escaped("x\r\ny"), "x\r<BR>\ny");
    EXPECT_EQ(escaped("x\ry"), "x\ry");
}

TEST(EscapeText, MakesEveryPairOfBlanksAHardOneAndASoftOne) {
    EXPECT_EQ(escaped("a b"), "a b");
    EXPECT_EQ(escaped("a  b"), "a&nbsp; b");
    EXPECT_EQ(escaped("a   b"), "a&nbsp;  b");
    EXPECT_EQ(escaped("a    b"), "a&nbsp; &nbsp; b");
    EXPECT_EQ(escaped("     "), "&nbsp; &nbsp;  ");
    EXPECT_EQ(escaped(" "), " ");
    EXPECT_EQ(escaped("  "), "&nbsp; ");
}

TEST(EscapeText, CopiesEveryOtherCharacterUnchanged) {
    const std::string text = "&><\"'\x7f\x80\xe4\xff&nbsp;</p>";
    EXPECT_EQ(escaped(text), text);
    const std::string withZero("a\0b\0", 4);
    EXPECT_EQ(escaped(withZero), withZero);
}

TEST(EscapeText, CopiesAnglesOneByOne) {
    EXPECT_EQ(escaped("<b>x</b>"), "<b>x</b>");
    EXPECT_EQ(escaped("a<<b"), "a<<b");
    EXPECT_EQ(escaped("<<<"), "<<<");
}

TEST(EscapeText, LetsMarkupThroughAndEscapesDoubledAngles) {
    EXPECT_EQ(escaped("<b>x</b>", true), "<b>x</b>");
    EXPECT_EQ(escaped("a<<b", true), "a&lt;&lt;b");
    EXPECT_EQ(escaped("<<<", true), "&lt;&lt;<");
    EXPECT_EQ(escaped("<<<<", true), "&lt;&lt;&lt;&lt;");
    EXPECT_EQ(escaped("<", true), "<");
    EXPECT_EQ(escaped("a<", true), "a<");
    EXPECT_EQ(escaped(">>", true), ">>");
}

TEST(EscapeText, HandsOnATextWithoutStopsUnchanged) {
    const std::string text = "plain text, one blank at a time < > &";
    std::string buffer;
    const std::string_view result = escapeText(text, true, buffer);
    EXPECT_EQ(result.data(), text.data());
    EXPECT_EQ(result.size(), text.size());
    EXPECT_EQ(escaped(""), "");
}

TEST(EscapeText, MixesStopsInOneText) {
    EXPECT_EQ(escaped("\t \n  <<", true), "&nbsp;&nbsp;  <BR>\n&nbsp; &lt;&lt;");
    EXPECT_EQ(escaped(" \t "), " &nbsp;&nbsp;  ");
}

/// The same, character by character.
std::string escapedPlainly(const std::string& text, bool passThrough) {
    std::string html;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = i + 1 < text.size() && text[i + 1] == text[i];
        if (text[i] == '\t') {
            html += "&nbsp;&nbsp; ";
        } else if (text[i] == '\n') {
            html += "<BR>\n";
        } else if (text[i] == ' ' && pair) {
            html += "&nbsp; ";
            ++i;
        } else if (text[i] == '<' && pair && passThrough) {
            html += "&lt;&lt;";
            ++i;
        } else {
            html += text[i];
        }
    }
    return html;
}

TEST(EscapeText, AgreesWithAWalkOverEveryCharacter) {
    std::mt19937 random(20240613);  // NOLINT(bugprone-random-generator-seed): the same every time
    const std::string letters = "a \t\n<<  b>\r";
    for (int round = 0; round < 20000; ++round) {
        std::string text(random() % 40, ' ');
        for (char& c : text) {
            c = letters[random() % letters.size()];
        }
        const bool passThrough = random() % 2 == 0;
        ASSERT_EQ(escaped(text, passThrough), escapedPlainly(text, passThrough)) << text;
    }
}

}  // namespace
}  // namespace quillmark
