#include "page/marks/splice_text.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(SpliceText, IsPlainWhileItOnlyGrows) {
    SpliceText text;
    EXPECT_EQ(text.merged(), "");
    EXPECT_EQ(text.lineCount(), 0);
    text.append("a");
    text.append("b");
    EXPECT_TRUE(text.isPlain());
    EXPECT_EQ(text.plain(), "ab");
    EXPECT_EQ(text.merged(), "ab");
}

TEST(SpliceText, IsPlainWithMarksWithoutInsertedText) {
    SpliceText text;
    const auto mark = text.addMark("m", 1);
    text.append("a");
    text.insertAt(mark, "");
    EXPECT_TRUE(text.isPlain());
    text.insertAt(mark, "x");
    EXPECT_FALSE(text.isPlain());
}

TEST(SpliceText, EndsALineAfterAPieceWithALineFeedAnywhereInIt) {
    SpliceText text;
    text.append("a");
    EXPECT_EQ(text.lineCount(), 1);
    text.append("b\nc");
    EXPECT_EQ(text.lineCount(), 2);
    text.append("\n\n\n");
    EXPECT_EQ(text.lineCount(), 3);
    text.append("d");
    EXPECT_EQ(text.lineCount(), 3);
}

TEST(SpliceText, HasALineOnceItIsWrittenToOrMarked) {
    SpliceText written;
    written.append("");
    EXPECT_EQ(written.lineCount(), 1);
    SpliceText marked;
    static_cast<void>(marked.addMark("", 1));
    EXPECT_EQ(marked.lineCount(), 1);
}

TEST(SpliceText, KnowsLineColumnMarkupAndSequenceOfAMark) {
    SpliceText text;
    text.append("ab\n");
    text.append("cde");
    const auto mark = text.addMark("<A x>", 7);
    text.append("f");
    EXPECT_EQ(text.line(mark), 2U);
    EXPECT_EQ(text.column(mark), 4U);
    EXPECT_EQ(text.markup(mark), "<A x>");
    EXPECT_EQ(text.sequence(mark), 7U);
}

TEST(SpliceText, InsertsTextAtTheMark) {
    SpliceText text;
    text.append("a");
    const auto mark = text.addMark("", 1);
    text.append("b");
    text.insertAt(mark, "1");
    text.insertAt(mark, "2");
    EXPECT_EQ(text.merged(), "a12b");
}

TEST(SpliceText, InsertsTextBeforeEarlierTextsAfterARewind) {
    SpliceText text;
    const auto mark = text.addMark("", 1);
    text.append("b");
    text.insertAt(mark, "1");
    text.rewind(mark);
    text.insertAt(mark, "2");
    text.insertAt(mark, "3");
    EXPECT_EQ(text.merged(), "231b");
}

TEST(SpliceText, InsertsTextAtTwoMarksAlternately) {
    SpliceText text;
    const auto one = text.addMark("", 1);
    text.append("-");
    const auto two = text.addMark("", 2);
    text.insertAt(one, "a");
    text.insertAt(two, "x");
    text.insertAt(one, "b");
    text.insertAt(two, "y");
    EXPECT_EQ(text.merged(), "ab-xy");
}

TEST(SpliceText, InsertsTextAtTheVeryEnd) {
    SpliceText text;
    text.append("a");
    const auto mark = text.addMark("", 1);
    text.insertAt(mark, "x");
    text.append("b");
    EXPECT_EQ(text.merged(), "axb");
}

TEST(SpliceText, MovesMarksOfTheSamePlaceByTheirSequence) {
    for (const std::uint32_t other : {0U, 1U, 2U}) {
        SpliceText text;
        const auto first = text.addMark("", 1);
        const auto second = text.addMark("", other);
        text.insertAt(first, "a");
        EXPECT_EQ(text.column(first), 1U);
        EXPECT_EQ(text.column(second), other > 1 ? 2U : 1U);
        text.insertAt(second, "b");
        EXPECT_EQ(text.merged(), other > 1 ? "ab" : "ba") << other;
    }
}

TEST(SpliceText, LeavesAnEqualMarkInFront) {
    SpliceText text;
    const auto one = text.addMark("", 3);
    const auto two = text.addMark("", 3);
    const auto three = text.addMark("", 3);
    text.insertAt(two, "b");
    text.insertAt(one, "a");
    text.insertAt(three, "c");
    EXPECT_EQ(text.merged(), "cab");
}

TEST(SpliceText, MovesMarksFurtherOnInTheLine) {
    SpliceText text;
    text.append("a");
    const auto one = text.addMark("", 9);
    text.append("b");
    const auto two = text.addMark("", 1);
    text.append("c\n");
    const auto nextLine = text.addMark("", 1);
    text.insertAt(one, "xyz");
    EXPECT_EQ(text.column(two), 6U);
    EXPECT_EQ(text.column(nextLine), 1U);
    EXPECT_EQ(text.column(one), 2U);
}

TEST(SpliceText, DoesNotEndALineWithInsertedText) {
    SpliceText text;
    const auto one = text.addMark("", 1);
    text.append("a");
    const auto two = text.addMark("", 2);
    text.insertAt(one, "x\ny\n");
    EXPECT_EQ(text.lineCount(), 1);
    EXPECT_EQ(text.line(two), 1U);
    EXPECT_EQ(text.column(two), 6U);
}

TEST(SpliceText, FillsAMarkWithItsMarkup) {
    SpliceText text;
    text.append("a");
    const auto mark = text.addMark("</A>", 1);
    text.append("b");
    text.fill(mark);
    EXPECT_EQ(text.merged(), "a</A>b");
    EXPECT_FALSE(text.isPlain());
}

TEST(SpliceText, FillsAMarkWithAPartOfItsMarkupReplaced) {
    SpliceText text;
    const auto mark = text.addMark("<A name>", 1);
    text.append("b");
    text.fill(mark, 3, 4, {"HREF=\"", "x.htm", "\""});
    EXPECT_EQ(text.merged(), "<A HREF=\"x.htm\">b");
}

TEST(SpliceText, FillsAMarkWithoutMarkup) {
    SpliceText text;
    const auto nothing = text.addMark("", 1);
    const auto replaced = text.addMark("", 1);
    text.append("b");
    text.fill(nothing);
    EXPECT_TRUE(text.isPlain());
    text.fill(replaced, 0, 0, {"x", "", "y"});
    EXPECT_EQ(text.merged(), "xyb");
}

TEST(SpliceText, FillsAMarkBeforeTheTextInsertedThere) {
    SpliceText text;
    const auto mark = text.addMark("m", 1);
    text.append("b");
    text.insertAt(mark, "x");
    text.fill(mark);
    EXPECT_EQ(text.merged(), "mxb");
}

TEST(SpliceText, FillsMarksOfTheSamePlaceByTheirSequence) {
    for (const std::uint32_t other : {0U, 1U, 2U}) {
        SpliceText text;
        const auto first = text.addMark("a", 1);
        const auto second = text.addMark("b", other);
        text.fill(first);
        EXPECT_EQ(text.column(second), other > 1 ? 2U : 1U);
        text.fill(second);
        EXPECT_EQ(text.merged(), other > 1 ? "ab" : "ba") << other;
    }
}

TEST(SpliceText, KeepsTheTextInsertedAtADroppedMark) {
    SpliceText text;
    const auto one = text.addMark("", 1);
    text.insertAt(one, "x");
    text.drop(one);
    const auto two = text.addMark("second", 1);
    text.insertAt(two, "y");
    EXPECT_EQ(text.markup(two), "second");
    EXPECT_EQ(text.merged(), "xy");
}

TEST(SpliceText, IsTheSameAfterReleasingMemory) {
    SpliceText text;
    const auto mark = text.addMark("m", 1);
    text.append("a");
    text.insertAt(mark, "x");
    text.compact();
    text.insertAt(mark, "y");
    EXPECT_EQ(text.markup(mark), "m");
    EXPECT_EQ(text.merged(), "xya");
}

TEST(SpliceText, IsCopiedWithItsMarks) {
    SpliceText text;
    const auto mark = text.addMark("m", 1);
    text.append("a");
    SpliceText copy = text;
    copy.insertAt(mark, "x");
    EXPECT_EQ(copy.merged(), "xa");
    EXPECT_EQ(text.merged(), "a");
}

}  // namespace
}  // namespace quillmark
