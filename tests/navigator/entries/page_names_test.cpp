#include "navigator/entries/page_names.h"

#include <gtest/gtest.h>

namespace quillmark {

namespace {

const PageNames names{"rep_dtl", ".htm"};

TEST(PageNames, PageNumbersAreReadFromLinks) {
    EXPECT_EQ(names.pageNumber("rep_dtl.htm#toc1"), 1U);
    EXPECT_EQ(names.pageNumber("rep_dtl27.htm#toc1"), 27U);
    EXPECT_EQ(names.pageNumber("a/b/rep_dtl3.htm#Page 3"), 3U);
}

TEST(PageNames, OtherFilesHaveNone) {
    for (const char* other : {"rep_dtl1.htm", "rep_dtl0.htm", "rep_dtl03.htm", "rep.htm",
                              "rep_dtlx.htm", "rep_dtl2.html", "", "rep_dtl99999999999.htm"}) {
        EXPECT_EQ(names.pageNumber(other), std::nullopt) << other;
    }
}

TEST(PageNames, EscapedNamesAreRead) {
    const PageNames accented{"\xC3\xA9_dtl", ".htm"};
    EXPECT_EQ(accented.pageNumber("%C3%A9_dtl4.htm#toc1"), 4U);
}

TEST(PageNames, NamesWithPercentSignsAreTakenAsTheyAre) {
    const PageNames percent{"50%_dtl", ".htm"};
    EXPECT_EQ(percent.pageNumber("50%_dtl4.htm#toc1"), 4U);
}

TEST(PageNames, AnchorNumbersAreReadFromLinks) {
    EXPECT_EQ(anchorNumber("rep_dtl.htm#toc12"), 12U);
    EXPECT_EQ(anchorNumber("rep_dtl.htm#Page 12"), std::nullopt);
    EXPECT_EQ(anchorNumber("rep_dtl.htm#toc"), std::nullopt);
    EXPECT_EQ(anchorNumber("rep_dtl.htm#toc1x"), std::nullopt);
    EXPECT_EQ(anchorNumber("rep_dtl.htm"), std::nullopt);
}

}  // namespace

}  // namespace quillmark
