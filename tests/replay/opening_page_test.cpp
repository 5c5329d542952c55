#include "replay/play/opening_page.h"

#include <gtest/gtest.h>

namespace quillmark::replay {

namespace {

std::string opened(const OpeningPage& page) {
    const auto answer = page.answer();
    return !answer.has_value() ? "(none)"
                               : answer->page.str() + (answer->needsJava ? " with Java" : "");
}

TEST(OpeningPage, IsMissingInARunWithoutPages) {
    EXPECT_EQ(opened(OpeningPage()), "(none)");
}

TEST(OpeningPage, IsTheFirstPageOfADocumentWithoutContents) {
    OpeningPage page;
    for (const char* name : {"C:\\out\\rep2.htm", "C:\\out\\rep.htm", "C:\\out\\a\\rep3.htm"}) {
        page.pageWritten(name);
    }
    EXPECT_EQ(opened(page), "C:\\out\\rep.htm");
}

TEST(OpeningPage, NeedsJavaForTheContents) {
    OpeningPage page;
    for (const char* name : {"C:\\out\\rep_dtl.htm", "C:\\out\\rep_cnt.htm", "C:\\out\\rep.htm"}) {
        page.pageWritten(name);
    }
    EXPECT_EQ(opened(page), "C:\\out\\rep.htm with Java");
}

TEST(OpeningPage, IsTheFrameSetOfAStaticListing) {
    OpeningPage page;
    for (const char* name : {"C:\\out\\rep_dtl.htm", "C:\\out\\rep_cnt.htm",
                             "C:\\out\\rep_sfrm.htm", "C:\\out\\rep.htm"}) {
        page.pageWritten(name);
    }
    EXPECT_EQ(opened(page), "C:\\out\\rep_sfrm.htm");
}

TEST(OpeningPage, IsTheStartPageOfTheNavigator) {
    OpeningPage page;
    page.fileCopied("C:\\out\\rep_nav\\navigator.js");
    for (const char* name : {"C:\\out\\rep_dtl.htm", "C:\\out\\rep_cnt.htm",
                             "C:\\out\\rep_sfrm.htm", "C:\\out\\rep.htm"}) {
        page.pageWritten(name);
    }
    EXPECT_EQ(opened(page), "C:\\out\\rep.htm");
}

TEST(OpeningPage, BelongsToTheFirstDocument) {
    OpeningPage page;
    for (const char* name : {"C:\\out\\rep_cnt.htm", "C:\\out\\rep.htm", "C:\\out\\b_cnt.htm",
                             "C:\\out\\b_sfrm.htm", "C:\\out\\b.htm"}) {
        page.pageWritten(name);
    }
    EXPECT_EQ(opened(page), "C:\\out\\rep.htm with Java");
}

}  // namespace

}  // namespace quillmark::replay
