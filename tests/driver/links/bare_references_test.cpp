// References without markup of their own: no operation writes one, so they are tested on
// BookmarkWriter itself.

#include "driver/document_fixture.h"
#include "driver/links/bookmark_writer.h"

namespace quillmark {
namespace {

class BareReferences : public ::testing::Test {
protected:
    BareReferences() {
        files.makeDirectories("C:\\out");
        out.page().setFileName("C:\\out\\p.htm");
    }
    /// The current page's body once it is written.
    std::string closed() {
        out.page().close();
        return testing::between(files.content("C:\\out\\p.htm").value_or(""), "</HEAD>\n\n",
                                "\n</HTML>\n");
    }

    MemoryFileSystem files;
    InstalledFileSystem installed{files};
    CapturingTrace heard;
    Trace trace;
    OutputRouter out;
    HeldPages held;
    BookmarkWriter bookmarks{out, held, trace};
};

TEST_F(BareReferences, ToAKnownPlaceAreTheAttributeAlone) {
    bookmarks.define("x", BookmarkWriter::Origin::host);
    bookmarks.reference("x", "");
    EXPECT_EQ(closed(), "<a name=\"x\"></a>HREF=\"p.htm#x\"");
}

TEST_F(BareReferences, ToAPlaceToComeWaitForIt) {
    bookmarks.reference("x", "");
    out.page().append("-");
    bookmarks.define("x", BookmarkWriter::Origin::host);
    EXPECT_EQ(closed(), "HREF=\"p.htm#x\"-<a name=\"x\"></a>");
}

TEST_F(BareReferences, AreReportedWithoutMarkup) {
    bookmarks.reference("x", "");
    out.page().close();
    EXPECT_EQ(heard.text(), "Unresolved references on page C:\\out\\p.htm\n  x near line 1\n");
}

TEST_F(BareReferences, KeepMarkupWithoutTheName) {
    bookmarks.reference("x", "<B>");
    bookmarks.define("x", BookmarkWriter::Origin::host);
    bookmarks.reference("x", "<I>");
    EXPECT_EQ(closed(), "<B><a name=\"x\"></a><I>");
}

TEST_F(BareReferences, AreForgottenWithAllBookmarks) {
    bookmarks.define("x", BookmarkWriter::Origin::host);
    bookmarks.clear();
    bookmarks.reference("x", "");
    bookmarks.define("x", BookmarkWriter::Origin::driver);
    EXPECT_EQ(closed(), "<a name=\"x\"></a>HREF=\"p.htm#x\"<a name=\"x\"></a>");
}

TEST_F(BareReferences, OfAPageWithoutAFileAreItsAnchorAlone) {
    out.page().setFileName("");
    bookmarks.define("x", BookmarkWriter::Origin::host);
    EXPECT_EQ(heard.text(), "created bookmark:x as #x\n");
    out.page().setFileName("C:\\out\\p.htm");
    bookmarks.reference("x", "<A x>");
    EXPECT_EQ(closed(), "<a name=\"x\"></a><A HREF=\"#x\">");
}

}  // namespace
}  // namespace quillmark
