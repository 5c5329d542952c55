#include <vector>

#include "driver/document_fixture.h"
#include "foundation/orx_exception.h"
#include "host/image_map_interface.h"

namespace quillmark {
namespace {

const std::string imageEnd = "\" ALIGN=\"BOTTOM\" BORDER=\"0\" >";

class Images : public testing::OpenDocumentTest {
protected:
    Images() { files.put("C:\\pics\\a.gif", "gif"); }
};

TEST_F(Images, AreCopiedAndShown) {
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    EXPECT_EQ(traced(), "dochtml->insertImage(\"C:\\pics\\a.gif\",\"\");\n");
    EXPECT_EQ(body(), "<IMG SRC=\"pix/a.gif" + imageEnd);
    EXPECT_EQ(out("pix\\a.gif"), "gif");
}

TEST_F(Images, MayBeNamedWithSlashes) {
    doc().insertImage(u"C:/pics/a.gif", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"pix/a.gif" + imageEnd);
}

TEST_F(Images, OfAnyKindAreShownWhenTheyExist) {
    files.put("C:\\pics\\a.png", "png");
    doc().insertImage(u"C:\\pics\\a.png", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"pix/a.png" + imageEnd);
}

TEST_F(Images, AreLookedForInTheRootWithoutAnInstallation) {
    setting("Settings", "InstallDir", "");
    html("StyleSheet", "");
    open();
    ASSERT_TRUE(files.setCurrentDirectory("C:\\inst"));
    files.put("C:\\inst\\pix\\b.gif", "of the current directory");
    traced();
    doc().insertImage(u"b.gif", u"");
    EXPECT_EQ(traced(), "dochtml->insertImage(\"b.gif\",\"\");\nERR File not found: b.gif\n");
    files.put("\\pix\\b.gif", "of the root");
    doc().insertImage(u"b.gif", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"pix/b.gif" + imageEnd);
    EXPECT_EQ(out("pix\\b.gif"), "of the root");
}

TEST_F(Images, AreTracedWhenMissing) {
    EXPECT_EQ(doc().insertImage(u"C:\\pics\\gone.png", u"http://example.org/"), 0);
    EXPECT_EQ(traced(),
              "dochtml->insertImage(\"C:\\pics\\gone.png\",\"http://example.org/\");\n"
              "ERR File not found: C:\\pics\\gone.png\n");
    EXPECT_EQ(body(), "");
}

TEST_F(Images, WithoutANameWriteAndTraceNothing) {
    doc().insertImage(u"", u"http://example.org/");
    EXPECT_EQ(traced(), "dochtml->insertImage(\"\",\"http://example.org/\");\n");
    EXPECT_EQ(body(), "");
}

TEST_F(Images, AreTakenFromTheInstallationByTheirBareName) {
    files.put("C:\\inst\\pix\\star.gif", "star");
    doc().insertImage(u"star.gif", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"pix/star.gif" + imageEnd);
    EXPECT_EQ(out("pix\\star.gif"), "star");
}

TEST_F(Images, AreNotTakenFromTheInstallationWithADirectoryOrAnotherKind) {
    files.put("C:\\inst\\pix\\star.gif", "star");
    files.put("C:\\inst\\pix\\star.png", "star");
    files.put("C:\\inst\\pix\\star.GIF", "star");
    doc().insertImage(u"sub\\star.gif", u"");
    doc().insertImage(u"star.png", u"");
    doc().insertImage(u"star.GIF", u"");
    EXPECT_EQ(traced(),
              "dochtml->insertImage(\"sub\\star.gif\",\"\");\n"
              "ERR File not found: sub\\star.gif\n"
              "dochtml->insertImage(\"star.png\",\"\");\n"
              "ERR File not found: star.png\n"
              "dochtml->insertImage(\"star.GIF\",\"\");\n"
              "ERR File not found: star.GIF\n");
    EXPECT_EQ(body(), "");
}

TEST_F(Images, AreNotCopiedWhenLinksAreAbsolute) {
    html("UseRelative", "false");
    open();
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"file:///C|/pics/a.gif" + imageEnd);
    EXPECT_FALSE(isWritten("C:\\out\\pix\\a.gif"));
}

TEST_F(Images, AreLinkedToTheirSourceWhenTheyMustNotBeCopied) {
    html("DontCopy", "gif.gif");
    open();
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    EXPECT_EQ(body(), "<IMG SRC=\"../pics/a.gif" + imageEnd);
}

TEST_F(Images, CanBeLinks) {
    doc().insertImage(u"C:\\pics\\a.gif", u"http://example.org/");
    EXPECT_EQ(body(), "<A HREF=\"http://example.org/\"><IMG SRC=\"pix/a.gif" + imageEnd + "</A>");
}

TEST_F(Images, CanLinkToAPlaceThatComesLater) {
    doc().insertImage(u"C:\\pics\\a.gif", u"target");
    doc().insertTag(u"target");
    EXPECT_EQ(body(), "<A HREF=\"rep.htm#target\"><IMG SRC=\"pix/a.gif" + imageEnd +
                          "</A><a name=\"target\"></a>");
}

TEST_F(Images, AreNotTextOfACell) {
    doc().startTable();
    doc().addCell();
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    doc().endTable();
    EXPECT_NE(body().find("&nbsp;</TD>"), std::string::npos);
}

TEST_F(Images, GoToTheHeaderWhileItIsOpen) {
    doc().startHeader();
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    doc().endHeader();
    EXPECT_EQ(header(), "<IMG SRC=\"pix/a.gif" + imageEnd);
}

/// A host's service that knows one region of one picture.
class OneRegion : public CImageMapInterface {
public:
    OneRegion() : before_(setInterface(this)) {}
    ~OneRegion() { setInterface(before_); }
    OneRegion(const OneRegion&) = delete;
    OneRegion& operator=(const OneRegion&) = delete;

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        if (picture == "C:/pics/a.gif") {
            regions = {"Class A", "target", "1,2,3,4"};
        }
    }

private:
    CImageMapInterface* before_;
};

class ImagesWithMaps : public Images {
protected:
    static std::string map(int number, const std::string& area) {
        const std::string name = "map" + std::to_string(number);
        return "<IMG SRC=\"pix/a.gif\" ALIGN=\"BOTTOM\" BORDER=\"0\"  USEMAP=#" + name +
               " >\n<MAP NAME=\"" + name + "\">\n" + area + "</MAP>";
    }
    const std::string area =
        "  <AREA SHAPE=\"POLY\" COORDS=\"1,2,3,4\"  NAME=\"Class A\" HREF=\"rep.htm#target\">\n";
    OneRegion service;
};

TEST_F(ImagesWithMaps, AreCountedAnewByACreateThatFails) {
    doc().insertImage(u"C:/pics/a.gif", u"");
    html("StyleSheet", "gone.css");
    EXPECT_THROW(doc().create(u"C:\\out\\rep.htm"), OrxException);
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), map(0, "") + map(0, ""));
}

TEST_F(ImagesWithMaps, AskWithTheNameThatTheHostGave) {
    doc().insertTag(u"target");
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().insertImage(u"C:\\pics\\a.gif", u"");
    EXPECT_EQ(body(), "<a name=\"target\"></a>" + map(0, area) + "<IMG SRC=\"pix/a.gif" + imageEnd);
}

TEST_F(ImagesWithMaps, WaitForTheirTargets) {
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().insertTag(u"target");
    EXPECT_EQ(body(), map(0, area) + map(1, area) + "<a name=\"target\"></a>");
}

TEST_F(ImagesWithMaps, CountTheirMapsFromTheDocumentsStart) {
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().close();
    open(u"C:\\out\\other.htm");
    doc().insertImage(u"C:/pics/a.gif", u"");
    doc().close();
    EXPECT_EQ(bodyOf("other.htm"), map(0, ""));
}

TEST_F(ImagesWithMaps, ReportTheAreasThatLeadNowhere) {
    doc().insertImage(u"C:/pics/a.gif", u"");
    traced();
    doc().close();
    EXPECT_NE(traced().find("  target near line 2   <AREA SHAPE=\"POLY\" COORDS=\"1,2,3,4\"  "
                            "NAME=\"Class A\" target>\n"),
              std::string::npos);
}

}  // namespace
}  // namespace quillmark
