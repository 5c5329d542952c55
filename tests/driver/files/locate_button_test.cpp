#include "driver/document_fixture.h"

namespace quillmark {
namespace {

std::string button(const std::string& way) {
    return " <input type=image class=locatebtn src=\"" + way +
           "/pixs/locate_in_brw.JPG\" onmouseout=\"this.src='" + way +
           "/pixs/locate_in_brw.JPG'\" onmouseover=\"this.src='" + way +
           "/pixs/locate_in_brw_button_mouse_over.JPG'\" title=\"Locate in browser\""
           " onclick=\"top.contents.Locate(location.href,this, document)\">";
}

class LocateButtons : public testing::OpenDocumentTest {
protected:
    LocateButtons() {
        setting("Settings", "UserFilesDir", "C:\\user");
        files.put("C:\\user\\pixs\\locate_in_brw.JPG", "one");
        files.put("C:\\user\\pixs\\locate_in_brw_button_mouse_over.JPG", "two");
    }
};

TEST_F(LocateButtons, LeadToTheirPicturesFromTheOutputDirectory) {
    EXPECT_EQ(doc().insertLocate(), 0);
    EXPECT_EQ(traced(), "");
    EXPECT_EQ(body(), button("."));
}

TEST_F(LocateButtons, LeadToTheirPicturesFromASubdirectory) {
    doc().pushDirectory(u"a\\b");
    doc().insertLocate();
    doc().close();
    EXPECT_EQ(bodyOf("a\\b\\rep.htm"), button("../.."));
}

TEST_F(LocateButtons, CopyTheirPicturesIntoThePictureDirectory) {
    doc().insertLocate();
    EXPECT_EQ(out("pix\\locate_in_brw.JPG"), "one");
    EXPECT_EQ(out("pix\\locate_in_brw_button_mouse_over.JPG"), "two");
}

TEST_F(LocateButtons, CopyTheirPicturesOnce) {
    doc().insertLocate();
    files.deleteFile("C:\\out\\pix\\locate_in_brw.JPG");
    doc().insertLocate();
    open();
    doc().insertLocate();
    EXPECT_FALSE(isWritten("C:\\out\\pix\\locate_in_brw.JPG"));
}

TEST_F(LocateButtons, AreThereWithoutTheirPictures) {
    setting("Settings", "UserFilesDir", "C:\\gone");
    doc().insertLocate();
    EXPECT_EQ(traced(), "");
    EXPECT_EQ(body(), button("."));
}

TEST_F(LocateButtons, TakeNoPicturesFromTheCurrentDirectory) {
    setting("Settings", "UserFilesDir", "");
    ASSERT_TRUE(files.setCurrentDirectory("C:\\user"));
    files.put("\\pixs\\locate_in_brw_button_mouse_over.JPG", "of the root");
    doc().insertLocate();
    EXPECT_EQ(out("pix\\locate_in_brw.JPG"), "(none)");
    EXPECT_EQ(out("pix\\locate_in_brw_button_mouse_over.JPG"), "of the root");
}

TEST_F(LocateButtons, OfAPageWithoutANameStartFromTheOutputDirectory) {
    doc().close();
    doc().insertLocate();
    doc().pushDirectory(u"x");
    doc().close();
    EXPECT_EQ(testing::between(out("x\\rep.htm"), "<BODY  >\n", "\n\n</BODY>"), button("."));
}

TEST_F(LocateButtons, AreNoneWhenTheContentsCannotLocate) {
    html("LocateInBrowser", "false");
    open();
    doc().insertLocate();
    EXPECT_EQ(written(), "");
    EXPECT_FALSE(isWritten("C:\\out\\pix\\locate_in_brw.JPG"));
}

TEST_F(LocateButtons, CountAsBodyText) {
    doc().setStyle(u"List");
    doc().insertLocate();
    doc().setStyle(u"Normal");
    doc().startTable();
    doc().addCell();
    doc().insertLocate();
    doc().endTable();
    EXPECT_EQ(body(), "<LI>" + button(".") + "<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2><TD>" +
                          button(".") + "</TD></TABLE>\n");
}

TEST_F(LocateButtons, InAHeadingBelongToItsEntryButOpenNoAnchor) {
    doc().setStyle(u"Heading 1");
    doc().insertLocate();
    doc().insertText(u"One");
    EXPECT_EQ(written(), "<H1>" + button(".") + "<a name=\"toc1\"></a>One");
}

}  // namespace
}  // namespace quillmark
