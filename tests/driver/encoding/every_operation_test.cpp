// Documents in UTF-8: every operation with texts from twelve scripts, and with UTF-16 that is not
// well-formed. Texts keep their code points as they are, in the form in which they came.

#include <gmock/gmock.h>

#include <span>
#include <vector>

#include "contents/fake_model.h"
#include "driver/document_fixture.h"
#include "driver/encoding/naive_char_set.h"
#include "driver/encoding/scripts.h"
#include "host/image_map_interface.h"

namespace quillmark::testing {
namespace {

using ::testing::HasSubstr;

/// Knows one region of every picture, whose name and target have the same text.
class RegionOfText final : public CImageMapInterface {
public:
    explicit RegionOfText(OrxString text) : text_(std::move(text)) {}
    RegionOfText(const RegionOfText&) = delete;
    RegionOfText& operator=(const RegionOfText&) = delete;
    ~RegionOfText() override { setInterface(before_); }

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        asked = picture;
        regions = {text_, "GUID" + text_, "1,2,3,4"};
    }

    OrxString asked;

private:
    OrxString text_;
    CImageMapInterface* before_ = setInterface(this);
};

/// Whether the simplest decoder finds nothing but whole characters.
bool isWhole(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || i + length > bytes.size()) {
            return false;
        }
        for (std::size_t k = 1; k < length; ++k) {
            if (static_cast<unsigned char>(bytes[i + k]) / 0x40 != 2) {
                return false;
            }
        }
        i += length;
    }
    return true;
}

class EveryOperation : public DocumentTest {
protected:
    EveryOperation() { html("CharSet", "UTF-8"); }
    ~EveryOperation() override {
        for (const std::string& name : files.fileNames()) {
            EXPECT_TRUE(isWhole(name)) << name;
            EXPECT_TRUE(isWhole(bytes(name))) << name;
        }
    }

    /// Checks a new document for each text of `scripts.h`.
    template <typename Check>
    void forEveryText(const Check& check) {
        for (const std::span<const ScriptSample> samples :
             {std::span<const ScriptSample>(scriptSamples),
              std::span<const ScriptSample>(illFormedSamples)}) {
            for (const ScriptSample& sample : samples) {
                SCOPED_TRACE(sample.script);
                text = sample.text;
                utf8 = naiveUtf8(text);
                link = naiveLink(utf8);
                renew();
                trace.clear();
                check();
            }
        }
    }
    /// The tree of the contents, with a support directory that has nothing else.
    void openWithContents() {
        html("Navig", "1");
        html("SupportOld", "true");
        open();
    }
    void heading(std::u16string_view words) {
        doc().setStyle(u"Heading 1");
        doc().insertText(words);
        doc().setStyle(u"Normal");
    }
    /// The link of the picture "TEXT.gif" without the end of its tag.
    [[nodiscard]] std::string picture() const {
        return "<IMG SRC=\"pix/" + link + ".gif\" ALIGN=\"BOTTOM\" BORDER=\"0\" ";
    }
    void putPicture() { files.put("C:\\in\\" + utf8 + ".gif", "GIF"); }

    [[nodiscard]] std::u16string pictureName() const { return u"C:\\in\\" + text + u".gif"; }

    std::u16string text;
    std::string utf8;
    /// The text as a part of a link.
    std::string link;
};

TEST_F(EveryOperation, TextIsEscapedBetweenCharacters) {
    forEveryText([&] {
        open();
        doc().insertText(text + u"  " + text + u"\t<<" + text + u"\n");
        doc().insertText(text);
        EXPECT_EQ(body(), utf8 + "&nbsp; " + utf8 + "&nbsp;&nbsp; <<" + utf8 + "<BR>\n" + utf8);
    });
}

TEST_F(EveryOperation, FontsCellsAndTablesKeepTheirTexts) {
    forEveryText([&] {
        open();
        doc().setFontName(text);
        doc().setFontAttribute(1, true);
        doc().insertText(text);
        doc().setFontAttribute(1, false);
        doc().startTable();
        doc().addCell();
        doc().insertText(text);
        doc().endTable();
        const std::string all = body();
        EXPECT_THAT(all, HasSubstr("<B>" + utf8 + "</B>"));
        EXPECT_THAT(all, HasSubstr(utf8 + "</TD>"));
        EXPECT_THAT(traced(), HasSubstr("dochtml->setFontName(\"" + utf8 + "\");\n"));
    });
}

TEST_F(EveryOperation, HeaderAndFooterKeepTheirTexts) {
    forEveryText([&] {
        open();
        doc().insertTag(text);
        doc().startHeader();
        doc().insertXref(text, text);
        doc().endHeader();
        doc().startFooter();
        doc().insertText(text);
        doc().endFooter();
        doc().close();
        const std::string page = out("rep.htm");
        EXPECT_EQ(between(page, "<BODY  >\n", "<HR>\n"),
                  "<A HREF=\"rep.htm#" + utf8 + "\">" + utf8 + "</A>");
        EXPECT_THAT(page, HasSubstr("<HR>" + utf8 + "\n</BODY>"));
    });
}

TEST_F(EveryOperation, ForwardReferencesArePlacedBetweenCharacters) {
    forEveryText([&] {
        open();
        doc().insertText(text);
        doc().insertXref(text, text);
        doc().insertText(text);
        doc().insertXref(text, text);
        doc().insertTag(text);
        const std::string reference = "<A HREF=\"rep.htm#" + utf8 + "\">" + utf8 + "</A>";
        EXPECT_EQ(body(), utf8 + reference + utf8 + reference + "<a name=\"" + utf8 + "\"></a>");
    });
}

TEST_F(EveryOperation, ReportsNameWhatIsMissing) {
    forEveryText([&] {
        open();
        doc().insertXref(text, text);
        doc().insertTag(u"x" + text);
        doc().insertTag(u"x" + text);
        doc().insertImage(pictureName(), u"");
        doc().insertFile(u"C:\\in\\" + text + u".txt", 3);
        trace.clear();
        doc().close();
        EXPECT_EQ(traced(),
                  "dochtml->close();\ncreated bookmark:toc1 as rep.htm#toc1\n"
                  "Unresolved references on page C:\\out\\rep.htm\n  " +
                      utf8 + " near line 1 <A " + utf8 + ">\n  " + utf8 + " near line 1 </A>\n");
    });
}

TEST_F(EveryOperation, PicturesAndTheirMapsKeepTheirNames) {
    forEveryText([&] {
        putPicture();
        RegionOfText maps(utf8);
        open();
        doc().insertImage(pictureName(), u"GUID" + text);
        doc().insertTag(u"GUID" + text);
        const std::string target = "HREF=\"rep.htm#GUID" + utf8 + "\">";
        EXPECT_EQ(body(), "<A " + target + picture() +
                              " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
                              "  <AREA SHAPE=\"POLY\" COORDS=\"1,2,3,4\"  NAME=\"" +
                              utf8 + "\" " + target + "\n</MAP></A><a name=\"GUID" + utf8 +
                              "\"></a>");
        EXPECT_EQ(maps.asked, "C:\\in\\" + utf8 + ".gif");
        EXPECT_EQ(out("pix\\" + utf8 + ".gif"), "GIF");
    });
}

TEST_F(EveryOperation, InsertedFilesKeepTheirTexts) {
    forEveryText([&] {
        files.put("C:\\in\\" + utf8 + ".txt", utf8 + "\r\n" + utf8);
        open();
        doc().insertFile(u"C:\\in\\" + text + u".txt", 3);
        EXPECT_EQ(body(), utf8 + "<BR>\n" + utf8);
    });
}

TEST_F(EveryOperation, FieldsShowTheNameOfTheDocument) {
    forEveryText([&] {
        open(u"C:\\" + text + u"\\" + text + u".htm");
        doc().insertField(3);
        doc().close();
        EXPECT_THAT(bytes("C:\\" + utf8 + "\\" + utf8 + ".htm"),
                    HasSubstr("<a name=\"Page 1\"></a>" + utf8 + ".htm\n"));
    });
}

TEST_F(EveryOperation, DirectoriesAndTheirLinksKeepTheirNames) {
    forEveryText([&] {
        open();
        doc().pushDirectory(text + u"\\" + text + u"#");
        doc().insertTag(u"x");
        doc().insertLocate();
        doc().popDirectory();
        doc().insertPageBreak();
        doc().insertXref(u"y", u"x");
        doc().close();
        EXPECT_THAT(out(utf8 + "\\" + utf8 + "#\\rep.htm"), HasSubstr("src=\"../../pixs/"));
        EXPECT_THAT(out("rep2.htm"),
                    HasSubstr("<A HREF=\"" + link + "/" + link + "%23/rep.htm#x\">y</A>"));
    });
}

TEST_F(EveryOperation, ContentsKeepTitlesEntriesAndModelNames) {
    forEveryText([&] {
        html("IconFile", "");
        const FakeObject element = FakeObject(utf8).with("name", utf8);
        const FakeSchema schema(element);
        openWithContents();
        doc().setOption(u"title", text);
        doc().insertMark(static_cast<std::int32_t>(FakeSchema::handle & 0xFFFFFFFFU), false);
        doc().insertMark(static_cast<std::int32_t>(FakeSchema::handle >> 32U), true);
        heading(text);
        doc().startTOCEntry();
        doc().insertText(text);
        doc().endTOCEntry();
        doc().close();
        EXPECT_THAT(out("rep_toc.dat"), HasSubstr("(NODE \"" + utf8 + "\" \"rep_dtl.htm#toc1\""));
        EXPECT_THAT(out("rep_toc.dat"), HasSubstr("\"" + utf8 + ".gif\""));
        for (const char* const page : {"rep.htm", "rep_dtl.htm", "rep_sfrm.htm", "rep_scnt.htm"}) {
            EXPECT_THAT(out(page), HasSubstr("<TITLE>" + utf8 + "</TITLE>\n")) << page;
        }
    });
}

TEST_F(EveryOperation, FramePagesLinkToTheirFiles) {
    forEveryText([&] {
        html("Navig", "3");
        html("SupportOld", "true");
        open(u"C:\\out\\" + text + u"%.htm");
        heading(text);
        doc().close();
        EXPECT_THAT(out(utf8 + "%_sfrm.htm"), HasSubstr("<FRAME SRC='" + link + "%25_scnt.htm'"));
        EXPECT_THAT(out(utf8 + "%_ffrm.htm"), HasSubstr("<FRAME SRC='" + link + "%25_dtl.htm'"));
        EXPECT_THAT(out(utf8 + "%.htm"), HasSubstr("HREF=\"" + link + "%25_sfrm.htm\""));
        EXPECT_THAT(out(utf8 + "%_cnt.htm"), HasSubstr("VALUE='" + link + "%25_toc.dat'"));
        EXPECT_THAT(out(utf8 + "%_toc.dat"), HasSubstr("\"" + link + "%25_dtl.htm#toc1\""));
    });
}

TEST_F(EveryOperation, ArrowsLinkToTheNeighbours) {
    html("Navig", "2");
    forEveryText([&] {
        open(u"C:\\out\\" + text + u"%#?.htm");
        doc().insertPageBreak();
        doc().insertText(u"x");
        doc().close();
        EXPECT_THAT(out(utf8 + "%#?.htm"), HasSubstr("<A HREF=\"./" + link + "%25%23%3F2.htm\">"));
        EXPECT_THAT(out(utf8 + "%#?2.htm"), HasSubstr("<A HREF=\"./" + link + "%25%23%3F.htm\">"));
    });
}

TEST_F(EveryOperation, TheLogAndTheExceptionLogKeepTheirTexts) {
    forEveryText([&] {
        setting("Log", "LogName", "C:\\logs\\" + utf8 + ".txt");
        files.makeDirectories("C:\\logs");
        open();
        doc().trace(11);
        doc().insertText(text);
        doc().trace(0);
        const std::string log = bytes("C:\\logs\\" + utf8 + ".txt");
        EXPECT_THAT(log, HasSubstr("dochtml->insertText(\"" + utf8 + "\");"));
        doc().overrideRegistry(u"Html", u"StyleSheet", u"C:\\" + text + u".css", 2);
        EXPECT_THROW(open(), OrxException);
        EXPECT_THAT(exceptions.messages().back(), HasSubstr("C:\\" + utf8 + ".css"));
    });
}

TEST_F(EveryOperation, OverridesKeepTheirTexts) {
    forEveryText([&] {
        doc().overrideRegistry(u"Html", u"BodyTags", u"ID=\"" + text + u"\"", 2);
        doc().overrideRegistry(u"Html", u"HtmlPixDir", text, 2);
        putPicture();
        open();
        doc().insertImage(pictureName(), u"");
        doc().close();
        EXPECT_THAT(out("rep.htm"), HasSubstr("<BODY ID=\"" + utf8 + "\" >"));
        EXPECT_THAT(out("rep.htm"), HasSubstr("<IMG SRC=\"" + link + "/" + link + ".gif\""));
        EXPECT_EQ(out(utf8 + "\\" + utf8 + ".gif"), "GIF");
    });
}

}  // namespace
}  // namespace quillmark::testing
