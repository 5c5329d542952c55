#include "replay/play/recording_fit.h"

#include <gtest/gtest.h>

namespace quillmark::replay {
namespace {

const TextEncoding& utf8 = TextEncoding::utf8();
const TextEncoding& codePage = TextEncoding::codePage();

constexpr std::string_view plainLine = "dochtml->insertText(\"plain\");";
constexpr std::string_view utf8Line =
    "dochtml->insertText(\"Gr\xC3\xB6\xC3\x9F"
    "e\");";
constexpr std::string_view eightBitLine =
    "dochtml->insertText(\"Gr\xF6\xDF"
    "e\");";

TEST(RecordingFit, AcceptsAsciiInEveryEncoding) {
    RecordingFit fit;
    EXPECT_FALSE(fit.isWrong(plainLine, utf8));
    EXPECT_FALSE(fit.isWrong(plainLine, codePage));
    EXPECT_FALSE(fit.isWrong("", utf8));
}

TEST(RecordingFit, AcceptsTheEncodingOfTheDocument) {
    RecordingFit fit;
    EXPECT_FALSE(fit.isWrong(utf8Line, utf8));
    EXPECT_FALSE(fit.isWrong(eightBitLine, codePage));
}

TEST(RecordingFit, FindsALineInTheOtherEncoding) {
    EXPECT_TRUE(RecordingFit().isWrong(eightBitLine, utf8));
    EXPECT_TRUE(RecordingFit().isWrong(utf8Line, codePage));
}

TEST(RecordingFit, TakesACutCharacterForEightBits) {
    EXPECT_TRUE(RecordingFit().isWrong("dochtml->insertText(\"\xC3", utf8));
    EXPECT_FALSE(RecordingFit().isWrong("dochtml->insertText(\"\xC3", codePage));
}

TEST(RecordingFit, AnswersOnce) {
    RecordingFit fit;
    EXPECT_TRUE(fit.isWrong(eightBitLine, utf8));
    EXPECT_FALSE(fit.isWrong(eightBitLine, utf8));
    EXPECT_FALSE(fit.isWrong(utf8Line, codePage));
}

TEST(RecordingFit, NamesTheSetting) {
    EXPECT_EQ(RecordingFit::problem(utf8),
              "the recording is not in UTF-8, which the setting Html.CharSet asks for");
    EXPECT_EQ(RecordingFit::problem(codePage),
              "the recording is in UTF-8; it was made with --set Html.CharSet=UTF-8");
}

}  // namespace
}  // namespace quillmark::replay
