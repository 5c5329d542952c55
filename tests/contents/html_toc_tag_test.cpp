#include "contents/entries/html_toc_tag.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

HtmlTOCTag classEntry() {
    HtmlTOCTag tag;
    tag.setHref("rep_dtl.htm#toc1");
    tag.setText("Class A");
    tag.setLevel(3);
    tag.setGif("Class.gif");
    tag.setStereoGif("entity.gif");
    return tag;
}

TEST(HtmlTOCTag, StartsWithEmptyTexts) {
    const HtmlTOCTag tag;
    EXPECT_EQ(tag.getHref(), "");
    EXPECT_EQ(tag.getText(), "");
    EXPECT_EQ(tag.getGif(), "");
    EXPECT_EQ(tag.getStereoGif(), "");
    EXPECT_EQ(tag.getLevel(), 0);
}

TEST(HtmlTOCTag, GivesBackWhatWasSet) {
    const HtmlTOCTag tag = classEntry();
    EXPECT_EQ(tag.getHref(), "rep_dtl.htm#toc1");
    EXPECT_EQ(tag.getText(), "Class A");
    EXPECT_EQ(tag.getLevel(), 3);
    EXPECT_EQ(tag.getGif(), "Class.gif");
    EXPECT_EQ(tag.getStereoGif(), "entity.gif");
}

TEST(HtmlTOCTag, IsCopiedWithAllItsMembers) {
    HtmlTOCTag copy;
    copy = classEntry();
    const HtmlTOCTag again(copy);
    EXPECT_EQ(again.getHref(), "rep_dtl.htm#toc1");
    EXPECT_EQ(again.getText(), "Class A");
    EXPECT_EQ(again.getLevel(), 3);
    EXPECT_EQ(again.getGif(), "Class.gif");
    EXPECT_EQ(again.getStereoGif(), "entity.gif");
}

TEST(HtmlTOCTag, ReturnsCopies) {
    HtmlTOCTag tag = classEntry();
    tag.getText().append(" and more");
    EXPECT_EQ(tag.getText(), "Class A");
}

TEST(HtmlTOCTag, ComparesAsTrueWithEverything) {
    const HtmlTOCTag empty;
    const HtmlTOCTag full = classEntry();
    EXPECT_TRUE(empty == full);
    EXPECT_TRUE(empty != full);
    EXPECT_TRUE(empty < full);
    EXPECT_TRUE(empty > full);
    EXPECT_TRUE(full == full);
    EXPECT_TRUE(full != full);
    EXPECT_TRUE(full < full);
    EXPECT_TRUE(full > full);
}

}  // namespace
}  // namespace quillmark
