#include "driver/links/link_writer.h"

#include "driver/document_fixture.h"

namespace quillmark {
namespace {

class Links : public testing::OpenDocumentTest {
protected:
    /// A link with the text "x" to that target.
    std::string linkTo(std::u16string_view target) {
        doc().insertXref(u"x", target);
        return written();
    }
};

TEST_F(Links, LeadToAUrlUnchanged) {
    EXPECT_EQ(linkTo(u"http://example.org/a b?c=\"d\""),
              "<A HREF=\"http://example.org/a b?c=\"d\"\">x</A>");
    EXPECT_EQ(traced().find("Unresolved"), std::string::npos);
}

TEST_F(Links, TakeEverySchemeForAUrl) {
    for (const char* const url : {"ftp://a", "mailto:a@b", "news:a", "x-y+z.1://a", "FILE:///c"}) {
        renew();
        open();
        EXPECT_EQ(linkTo(testing::wide(url)), "<A HREF=\"" + std::string(url) + "\">x</A>");
    }
}

TEST_F(Links, TakeOtherColonsForBookmarks) {
    for (const char* const name : {"pkg::Class", "Use Case: A", "c://a", "1a://b", "://a"}) {
        renew();
        open();
        EXPECT_EQ(linkTo(testing::wide(name)), "x") << name;
    }
}

TEST_F(Links, CopyADocumentIntoTheDocumentDirectory) {
    files.put("C:\\docs\\a b.doc", "doc");
    EXPECT_EQ(linkTo(u"C:\\docs\\a b.doc"), "<A HREF=\"docs/a b.doc\">x</A>");
    EXPECT_EQ(out("docs\\a b.doc"), "doc");
}

TEST_F(Links, CopyAPictureIntoThePictureDirectory) {
    files.put("C:\\docs\\a.gif", "gif");
    EXPECT_EQ(linkTo(u"C:\\docs\\a.gif"), "<A HREF=\"pix/a.gif\">x</A>");
    EXPECT_EQ(out("pix\\a.gif"), "gif");
    EXPECT_FALSE(isWritten("C:\\out\\docs\\a.gif"));
}

TEST_F(Links, CopyAPictureOfAnotherKindAsADocument) {
    files.put("C:\\docs\\a.JPG", "jpg");
    EXPECT_EQ(linkTo(u"C:\\docs\\a.JPG"), "<A HREF=\"docs/a.JPG\">x</A>");
}

TEST_F(Links, CountFromThePagesDirectory) {
    files.put("C:\\docs\\a.doc", "doc");
    doc().pushDirectory(u"s\\t");
    doc().insertXref(u"x", u"C:\\docs\\a.doc");
    doc().close();
    EXPECT_EQ(bodyOf("s\\t\\rep.htm"), "<A HREF=\"../../docs/a.doc\">x</A>");
}

TEST_F(Links, LeadToTheSourceOfADocumentThatMustNotBeCopied) {
    html("DontCopy", ".doc.pdf");
    open();
    files.put("C:\\elsewhere\\a.doc", "doc");
    EXPECT_EQ(linkTo(u"C:\\elsewhere\\a.doc"), "<A HREF=\"../elsewhere/a.doc\">x</A>");
    EXPECT_FALSE(isWritten("C:\\out\\docs\\a.doc"));
}

TEST_F(Links, NameAnotherDriveWithABar) {
    html("DontCopy", ".doc");
    open();
    files.put("D:\\elsewhere\\a.doc", "doc");
    EXPECT_EQ(linkTo(u"D:\\elsewhere\\a.doc"), "<A HREF=\"D|/elsewhere/a.doc\">x</A>");
}

class AbsoluteLinks : public Links {
protected:
    AbsoluteLinks() {
        html("UseRelative", "false");
        open();
    }
};

TEST_F(AbsoluteLinks, AreFileUrlsAndCopyNothing) {
    files.put("C:\\docs\\a.doc", "doc");
    EXPECT_EQ(linkTo(u"C:\\docs\\a.doc"), "<A HREF=\"file:///C|/docs/a.doc\">x</A>");
    EXPECT_FALSE(isWritten("C:\\out\\docs\\a.doc"));
}

TEST_F(AbsoluteLinks, GiveARelativeNameTheAddressOfTheFile) {
    files.put("C:\\home\\docs\\a.doc", "doc");
    ASSERT_TRUE(files.setCurrentDirectory("C:\\home"));
    EXPECT_EQ(linkTo(u"docs\\a.doc"), "<A HREF=\"file:///C|/home/docs/a.doc\">x</A>");
    EXPECT_EQ(linkTo(u"docs\\..\\docs/a.doc"), "<A HREF=\"file:///C|/home/docs/a.doc\">x</A>");
}

TEST_F(AbsoluteLinks, LeaveBookmarksRelative) {
    doc().insertTag(u"target");
    EXPECT_EQ(linkTo(u"target"), "<a name=\"target\"></a><A HREF=\"rep.htm#target\">x</A>");
}

class ExternalDocuments : public Links {
protected:
    ExternalDocuments() { files.put("C:\\out\\docs\\a.doc", "doc"); }
};

TEST_F(ExternalDocuments, AreFoundByTheirFilePart) {
    // The end of such a link is a bookmark's: it waits for a bookmark of that name.
    doc().insertXref(u"x", u"C:\\gone\\a.doc");
    traced();
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), "<A HREF=\"docs/a.doc\">x");
    EXPECT_NE(traced().find("Unresolved references on page C:\\out\\rep.htm\n"
                            "  C:\\gone\\a.doc near line 1 </A>\n"),
              std::string::npos);
}

TEST_F(ExternalDocuments, HaveTheirLinkEndedByATagOfTheirName) {
    doc().insertXref(u"x", u"a.doc");
    doc().insertTag(u"a.doc");
    EXPECT_EQ(body(), "<A HREF=\"docs/a.doc\">x</A><a name=\"a.doc\"></a>");
}

TEST_F(ExternalDocuments, HaveTheirLinkEndedAtOnceAfterATagOfTheirName) {
    doc().insertTag(u"a.doc");
    doc().insertXref(u"x", u"a.doc");
    EXPECT_EQ(body(), "<a name=\"a.doc\"></a><A HREF=\"docs/a.doc\">x</A>");
}

TEST_F(ExternalDocuments, AreAbsoluteWhenLinksAre) {
    html("UseRelative", "0");
    open();
    EXPECT_EQ(linkTo(u"a.doc"), "<A HREF=\"file:///C|/out/docs/a.doc\">x");
}

TEST_F(ExternalDocuments, AreNotLookedForByADirectoryName) {
    EXPECT_EQ(linkTo(u"C:\\gone\\"), "x");
}

TEST_F(Links, ToADirectoryAreABookmarks) {
    files.makeDirectories("C:\\docs\\sub");
    EXPECT_EQ(linkTo(u"C:\\docs\\sub"), "x");
}

TEST_F(Links, FallBackToTheSourceWhenTheCopyFails) {
    files.put("C:\\docs\\a.doc", "doc");
    files.put("C:\\out\\docs", "a file where the directory should be");
    doc().insertXref(u"x", u"C:\\docs\\a.doc");
    EXPECT_EQ(traced(),
              "dochtml->insertXref(\"x\",\"C:\\docs\\a.doc\");\n"
              "ERR Could not copy file C:\\docs\\a.doc to directory C:\\out\\docs\n");
    EXPECT_EQ(written(), "<A HREF=\"../docs/a.doc\">x</A>");
}

}  // namespace
}  // namespace quillmark
