#include "contents/tree/tree_text.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {
namespace {

std::string converted(std::string_view text) {
    std::string out = "|";
    appendTreeText(out, text);
    return out;
}

TEST(TreeText, LeavesPlainTextAlone) {
    EXPECT_EQ(converted("Intro <B> 7"), "|Intro <B> 7");
}

TEST(TreeText, EscapesBackslashes) {
    EXPECT_EQ(converted(R"(a\b\\c)"), R"(|a\\b\\\\c)");
}

TEST(TreeText, EscapesDoubleQuotes) {
    EXPECT_EQ(converted(R"(a"b")"), R"(|a\"b\")");
}

TEST(TreeText, EscapesABackslashOnceEvenInFrontOfAQuote) {
    EXPECT_EQ(converted(R"(\")"), R"(|\\\")");
}

TEST(TreeText, DecodesLessThanAndNonBreakingSpaces) {
    EXPECT_EQ(converted("&lt;&lt;a&nbsp;&nbsp; b"), "|<<a   b");
}

TEST(TreeText, LeavesOtherEntitiesAsTheyAre) {
    EXPECT_EQ(converted("a&gt;b&amp;c&LT;&quot;"), "|a&gt;b&amp;c&LT;&quot;");
}

TEST(TreeText, DropsCarriageReturnsAndLineBreaks) {
    EXPECT_EQ(converted("a\r<BR>\nb<BR>\n<BR>\nc"), "|abc");
}

TEST(TreeText, LeavesABreakWithoutItsLineFeedAndALineFeedWithoutItsBreak) {
    EXPECT_EQ(converted("a<BR>b\nc<br>\nd"), "|a<BR>b\nc<br>\nd");
}

TEST(TreeText, ConvertsInALaterStepWhatAnEarlierOneMade) {
    EXPECT_EQ(converted("a&lt;BR>\nb"), "|ab");
    EXPECT_EQ(converted("a<BR\r>\nb"), "|ab");
}

TEST(TreeText, DoesNotConvertInAnEarlierStepWhatALaterOneMade) {
    EXPECT_EQ(converted("&nb\rsp;"), "|&nbsp;");
    EXPECT_EQ(converted("&l<BR>\nt;"), "|&lt;");
}

TEST(TreeText, DoesNotConvertTwiceInOneStep) {
    EXPECT_EQ(converted("<B<BR>\nR>\n"), "|<BR>\n");
}

TEST(TreeText, CopiesBytesAboveAscii) {
    EXPECT_EQ(converted("\xE4\xFF\x01"), "|\xE4\xFF\x01");
}

TEST(TreeText, AddsNothingForAnEmptyText) {
    EXPECT_EQ(converted(""), "|");
}

/// The conversions as the format describes them: whole text, one after the other.
std::string modelText(const std::string& text) {
    OrxString model(text);
    model.replaceStr("\\", "\\\\").replaceStr("\"", "\\\"").replaceStr("&lt;", "<");
    model.replaceStr("&nbsp;", " ").replaceStr("\r", "").replaceStr("<BR>\n", "");
    return "|" + model.str();
}

TEST(TreeText, IsTheModelsForAnyMixOfWhatIsConverted) {
    constexpr std::array<std::string_view, 16> pieces = {
        "\\",  "\"", "&lt;", "&nbsp;", "&",    "lt;",    "nbsp;", "<",
        "BR>", "a",  " ",    "&gt;",   "\xE4", "<BR>\n", "\r",    "\n"};
    std::mt19937 random(5);
    for (int round = 0; round < 4000; ++round) {
        // Every other text is one without line ends.
        const std::size_t choices = round % 2 == 0 ? pieces.size() : pieces.size() - 3;
        std::string text;
        for (std::size_t count = random() % 12; count > 0; --count) {
            text.append(pieces.at(random() % choices));
        }
        ASSERT_EQ(converted(text), modelText(text)) << text;
    }
}

}  // namespace
}  // namespace quillmark
