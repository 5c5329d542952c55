#include "contents/static_listing.h"

#include <gtest/gtest.h>

#include <limits>

#include "contents/contents_fixture.h"

namespace quillmark {
namespace {

class StaticListing : public testing::ContentsTest {
protected:
    /// The body of a page that holds nothing but the listing.
    [[nodiscard]] std::string listing() const {
        DocHtmlPage page;
        page.setFileName("C:\\out\\listing.htm");
        writeStaticListing(entries, page);
        page.close();
        return body("listing.htm");
    }

    static constexpr const char* opening = "<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n";
};

TEST_F(StaticListing, WithoutEntriesIsTheHeadingAlone) {
    EXPECT_EQ(listing(), opening);
}

TEST_F(StaticListing, HasOneLineAnEntryIndentedByItsLevel) {
    entries.add({.href = "rep_dtl.htm#toc1", .text = "Intro", .level = 1});
    entries.add({.href = "rep_dtl.htm#toc2", .text = "More", .level = 2});
    entries.add({.href = "rep_dtl2.htm#Page 2", .text = "Page 2", .level = 4});
    EXPECT_EQ(listing(),
              opening + std::string("<A HREF=\"rep_dtl.htm#toc1\">Intro</a><BR>\n"
                                    "&nbsp;&nbsp;&nbsp;<A HREF=\"rep_dtl.htm#toc2\">More</a><BR>\n"
                                    "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;"
                                    "<A HREF=\"rep_dtl2.htm#Page 2\">Page 2</a><BR>\n"));
}

TEST_F(StaticListing, WritesTextAndHrefUnchanged) {
    entries.add({.href = "a\"b%s#t", .text = "x&lt;y<BR>\n\"\\z", .level = 1});
    EXPECT_EQ(listing(), opening + std::string("<A HREF=\"a\"b%s#t\">x&lt;y<BR>\n\"\\z</a><BR>\n"));
}

TEST_F(StaticListing, DoesNotIndentLevelsBelowTheTop) {
    for (const std::int32_t level : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
        entries.clear();
        entries.add({.href = "h", .text = "t", .level = level});
        EXPECT_EQ(listing(), opening + std::string("<A HREF=\"h\">t</a><BR>\n")) << level;
    }
}

TEST_F(StaticListing, WritesALevelThatNoPageCanHoldWithoutIndentation) {
    entries.add({.href = "h", .text = "t", .level = std::numeric_limits<std::int32_t>::max()});
    entries.add({.href = "i", .text = "u", .level = 2});
    EXPECT_EQ(listing(), opening + std::string("<A HREF=\"h\">t</a><BR>\n"
                                               "&nbsp;&nbsp;&nbsp;<A HREF=\"i\">u</a><BR>\n"));
}

TEST_F(StaticListing, IndentsDeepLevelsExactly) {
    entries.add({.href = "h", .text = "t", .level = 50'001});
    EXPECT_EQ(listing().size(), std::string(opening).size() + 50'000 * 18 +
                                    std::string("<A HREF=\"h\">t</a><BR>\n").size());
}

TEST_F(StaticListing, KnowsItsSizeInAdvance) {
    EXPECT_EQ(staticListingSize(entries), listing().size());
    entries.add({.href = "rep_dtl.htm#toc1", .text = "Intro", .level = 1});
    entries.add({.href = "h", .text = "a<BR>\nb", .level = 7});
    entries.add({.href = "h", .text = "t", .level = std::numeric_limits<std::int32_t>::max()});
    entries.add({.href = "h", .text = "t", .level = -1});
    EXPECT_EQ(staticListingSize(entries), listing().size());
}

TEST_F(StaticListing, StartsALineOfThePageForEveryWriteWithALineFeed) {
    entries.add({.href = "h", .text = "plain", .level = 3});
    entries.add({.href = "h", .text = "two<BR>\nlines<BR>\n", .level = 1});
    DocHtmlPage page;
    writeStaticListing(entries, page);
    // Two lines of heading, one for the first entry, two for the second (its text, its end), and
    // the line that was begun last.
    EXPECT_EQ(page.getLineCount(), 6);
}

TEST_F(StaticListing, IsWrittenAtTheInsertionPoint) {
    entries.add({.href = "h", .text = "t", .level = 1});
    DocHtmlPage page;
    page.setFileName("C:\\out\\listing.htm");
    page.append("before ");
    page.addMark("TOC", "");
    page.append("after\nlast");
    ASSERT_TRUE(page.setInsertPoint("TOC"));
    writeStaticListing(entries, page);
    page.removeMarks("TOC");
    page.close();
    EXPECT_EQ(body("listing.htm"),
              "before " + std::string(opening) + "<A HREF=\"h\">t</a><BR>\nafter\nlast");
}

}  // namespace
}  // namespace quillmark
