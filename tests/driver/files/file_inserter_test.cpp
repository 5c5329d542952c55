#include "driver/document_fixture.h"
#include "support/failing_file_system.h"

namespace quillmark {
namespace {

constexpr std::int16_t asLink = 1;
constexpr std::int16_t asContents = 3;

class Files : public testing::OpenDocumentTest {
protected:
    /// What pasting a file of those bytes writes.
    std::string pasted(const std::string& bytes) {
        renew();
        open();
        files.put("C:\\docs\\a.txt", bytes);
        doc().insertFile(u"C:\\docs\\a.txt", asContents);
        return written();
    }
};

TEST_F(Files, ArePastedLineByLine) {
    EXPECT_EQ(pasted("a\n\nb"), "a<BR>\n<BR>\nb");
    EXPECT_EQ(pasted("a\r\nb\r\n"), "a<BR>\nb");
    EXPECT_EQ(pasted("a"), "a");
    EXPECT_EQ(pasted("\n"), "");
    EXPECT_EQ(pasted("\n\n"), "<BR>\n");
    EXPECT_EQ(pasted(""), "");
}

TEST_F(Files, ArePastedEscaped) {
    EXPECT_EQ(pasted("a\tb  c <i>"), "a&nbsp;&nbsp; b&nbsp; c <i>");
}

TEST_F(Files, ArePastedWithoutFollowingLinksInThem) {
    EXPECT_EQ(pasted("<a href=\"#GUID-1\">x</a>"), "<a href=\"#GUID-1\">x</a>");
}

TEST_F(Files, ArePastedInPiecesOfTwoThousandCharacters) {
    const std::string piece(2000, 'x');
    EXPECT_EQ(pasted(piece + "\ny"), piece + "<BR>\ny");
    EXPECT_EQ(pasted(piece + "y"), piece + "<BR>\ny");
}

TEST_F(Files, TraceTheirOwnCallOnly) {
    files.put("C:\\docs\\a.txt", "a\nb");
    EXPECT_EQ(doc().insertFile(u"C:\\docs\\a.txt", asContents), 0);
    EXPECT_EQ(traced(), "dochtml->insertFile(\"C:\\docs\\a.txt\",3);\n");
}

TEST_F(Files, BeginListItemsAndGiveHeadingsNoAnchor) {
    files.put("C:\\docs\\a.txt", "a\nb");
    doc().setStyle(u"List Bullet");
    doc().insertFile(u"C:\\docs\\a.txt", asContents);
    doc().setStyle(u"Heading 1");
    doc().insertFile(u"C:\\docs\\a.txt", asContents);
    EXPECT_EQ(written(), "<UL><LI>a<BR>\n<LI>b<H1>a<BR>\nb");
}

TEST_F(Files, ThatArePicturesAreShown) {
    files.put("C:\\docs\\a.gif", "gif");
    doc().insertFile(u"C:\\docs\\a.gif", asContents);
    EXPECT_EQ(written(), "<IMG SRC=\"pix/a.gif\" ALIGN=\"BOTTOM\" BORDER=\"0\" >");
}

TEST_F(Files, ThatAreInstalledPicturesAreShown) {
    files.put("C:\\inst\\pix\\star.gif", "gif");
    doc().insertFile(u"star.gif", asContents);
    EXPECT_EQ(written(), "<IMG SRC=\"pix/star.gif\" ALIGN=\"BOTTOM\" BORDER=\"0\" >");
}

TEST_F(Files, ThatAreBitmapsWriteNothingAsContents) {
    files.put("C:\\docs\\a.bmp", "bmp");
    doc().insertFile(u"C:\\docs\\a.bmp", asContents);
    EXPECT_EQ(written(), "");
}

TEST_F(Files, ThatAreBitmapsAreLinked) {
    files.put("C:\\docs\\a.bmp", "bmp");
    doc().insertFile(u"C:\\docs\\a.bmp", asLink);
    EXPECT_EQ(written(), "<A HREF=\"docs/a.bmp\">a.bmp</A>");
}

TEST_F(Files, AreLinkedWithTheirNameAsMarkup) {
    files.put("C:\\docs\\a  <b>.doc", "doc");
    doc().insertFile(u"C:\\docs\\a  <b>.doc", asLink);
    EXPECT_EQ(written(), "<A HREF=\"docs/a  <b>.doc\">a  <b>.doc</A>");
    EXPECT_EQ(out("docs\\a  <b>.doc"), "doc");
}

TEST_F(Files, AreLinkedForEveryOtherKind) {
    files.put("C:\\docs\\a.doc", "doc");
    for (const int kind : {0, 1, 2, 4, -3, 32767}) {
        doc().insertFile(u"C:\\docs\\a.doc", static_cast<std::int16_t>(kind));
    }
    std::string links;
    for (int i = 0; i < 6; ++i) {
        links += "<A HREF=\"docs/a.doc\">a.doc</A>";
    }
    EXPECT_EQ(written(), links);
}

TEST_F(Files, MayBeUrls) {
    doc().insertFile(u"http://example.org/a/b.htm", asLink);
    EXPECT_EQ(written(), "<A HREF=\"http://example.org/a/b.htm\">b.htm</A>");
    EXPECT_EQ(traced().find("ERR"), std::string::npos);
}

TEST_F(Files, ThatAreUrlsCannotBePasted) {
    doc().insertFile(u"http://example.org/a.txt", asContents);
    EXPECT_EQ(traced(),
              "dochtml->insertFile(\"http://example.org/a.txt\",3);\n"
              "ERR Cannot open : http://example.org/a.txt\n");
    EXPECT_EQ(written(), "");
}

TEST_F(Files, AreTracedWhenMissing) {
    doc().insertFile(u"C:\\docs\\gone.doc", asLink);
    doc().insertFile(u"C:\\docs\\gone.txt", asContents);
    EXPECT_EQ(traced(),
              "dochtml->insertFile(\"C:\\docs\\gone.doc\",1);\n"
              "ERR File not found: C:\\docs\\gone.doc\n"
              "dochtml->insertFile(\"C:\\docs\\gone.txt\",3);\n"
              "ERR File not found: C:\\docs\\gone.txt\n");
    EXPECT_EQ(written(), "");
}

TEST_F(Files, WithoutANameDoNothing) {
    doc().insertFile(u"", asContents);
    doc().insertFile(u"", asLink);
    EXPECT_EQ(traced(), "dochtml->insertFile(\"\",3);\ndochtml->insertFile(\"\",1);\n");
    EXPECT_EQ(written(), "");
}

TEST_F(Files, ArePastedFromTheExternalDocumentsFirst) {
    files.put("C:\\docs\\a.txt", "given");
    files.put("C:\\out\\docs\\a.txt", "external");
    doc().insertFile(u"C:\\docs\\a.txt", asContents);
    EXPECT_EQ(written(), "external");
}

TEST_F(Files, AreFoundAmongTheExternalDocumentsAlone) {
    files.put("C:\\out\\docs\\a.txt", "external");
    doc().insertFile(u"D:\\gone\\a.txt", asContents);
    doc().insertFile(u"D:\\gone\\a.txt", asLink);
    EXPECT_EQ(traced(),
              "dochtml->insertFile(\"D:\\gone\\a.txt\",3);\n"
              "ERR File not found: D:\\gone\\a.txt\n"
              "dochtml->insertFile(\"D:\\gone\\a.txt\",1);\n"
              "ERR File not found: D:\\gone\\a.txt\n");
    EXPECT_EQ(written(), "external<A HREF=\"docs/a.txt\">a.txt</A>");
}

TEST_F(Files, ThatCannotBeOpenedAreTraced) {
    files.put("C:\\docs\\a.txt", "a");
    FailingFileSystem failing(files);
    const InstalledFileSystem installed(failing);
    failing.failAll(FailingFileSystem::Operation::openForReading);
    doc().insertFile(u"C:\\docs\\a.txt", asContents);
    EXPECT_EQ(traced(),
              "dochtml->insertFile(\"C:\\docs\\a.txt\",3);\n"
              "ERR Cannot open : C:\\docs\\a.txt\n");
    EXPECT_EQ(written(), "");
}

TEST_F(Files, AreClosedAgain) {
    files.put("C:\\docs\\a.txt", "a\nb");
    doc().insertFile(u"C:\\docs\\a.txt", asContents);
    EXPECT_EQ(files.openFiles(), 0);
}

}  // namespace
}  // namespace quillmark
