#include "driver/document_fixture.h"

namespace quillmark {
namespace {

/// A document that its host names without a directory: it is in the current directory.
class RelativeNames : public testing::DocumentTest {
protected:
    RelativeNames() {
        files.put("C:\\pics\\p.gif", "gif");
        open(u"rep.htm");
    }
    /// Fills a page in a directory of its own, which has a bookmark and all kinds of links.
    void fillPage(std::u16string_view directory, std::u16string_view bookmark,
                  std::u16string_view target) {
        doc().insertEndl();
        doc().insertEndl();
        doc().pushDirectory(directory);
        doc().insertTag(bookmark);
        doc().insertXref(u"x", target);
        doc().insertImage(u"C:\\pics\\p.gif", u"");
        doc().insertLocate();
    }
    [[nodiscard]] std::string link(const OrxString& page, const std::string& opening) const {
        return testing::between(bytes(page), opening, "\"");
    }
};

TEST_F(RelativeNames, LeadFromASubdirectoryBackToTheDocument) {
    doc().insertTag(u"B");
    fillPage(u"s1", u"C", u"B");
    doc().close();
    const OrxString page = "s1\\rep2.htm";
    EXPECT_EQ(link(page, "TYPE=\"text/css\" HREF=\""), "../default.css");
    EXPECT_EQ(link(page, "<A HREF=\""), "../rep.htm#B");
    EXPECT_EQ(link(page, "<IMG SRC=\""), "../pix/p.gif");
    EXPECT_EQ(link(page, "class=locatebtn src=\""), "../pixs/locate_in_brw.JPG");
}

TEST_F(RelativeNames, LeadFromOneSubdirectoryToAnother) {
    fillPage(u"s1", u"C", u"D");
    fillPage(u"s2\\deep", u"D", u"C");
    doc().close();
    EXPECT_EQ(link("s1\\rep2.htm", "<A HREF=\""), "../s2/deep/rep3.htm#D");
    EXPECT_EQ(link("s2\\deep\\rep3.htm", "<A HREF=\""), "../../s1/rep2.htm#C");
}

TEST_F(RelativeNames, LeadFromTheDocumentIntoASubdirectory) {
    doc().insertXref(u"x", u"C");
    doc().insertImage(u"C:\\pics\\p.gif", u"");
    doc().insertLocate();
    fillPage(u"s1", u"C", u"C");
    doc().close();
    EXPECT_EQ(link("rep.htm", "<A HREF=\""), "s1/rep2.htm#C");
    EXPECT_EQ(link("rep.htm", "TYPE=\"text/css\" HREF=\""), "default.css");
    EXPECT_EQ(link("rep.htm", "<IMG SRC=\""), "pix/p.gif");
    EXPECT_EQ(link("rep.htm", "class=locatebtn src=\""), "./pixs/locate_in_brw.JPG");
}

TEST_F(RelativeNames, LeadToABookmarkOfAPageWithoutANameByItsFragmentAlone) {
    doc().close();
    doc().insertTag(u"B");  // this page gets its name with the directory
    doc().pushDirectory(u"s1");
    doc().insertXref(u"x", u"B");
    doc().close();
    EXPECT_EQ(link("s1\\rep.htm", "<A HREF=\""), "#B");
}

}  // namespace
}  // namespace quillmark
