#include "driver/pages/document_settings.h"

#include <vector>

#include "driver/document_fixture.h"
#include "host/app_profile_interface.h"
#include "platform/files/sys_file.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

/// A store without values that keeps what it is asked for.
class AskedStore : public SettingsStore {
public:
    std::optional<OrxString> read(const OrxString& group, const OrxString& name) const override {
        asked.push_back(group.str() + "." + name.str());
        return std::nullopt;
    }
    bool write(const OrxString&, const OrxString&, const OrxString&) override { return false; }

    mutable std::vector<std::string> asked;
};

TEST(DocumentSettings, AreReadInTheirOrder) {
    const auto store = std::make_shared<AskedStore>();
    RegisterBase::setStore(store);
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    DocHtml document;
    files.put("default.css", "");
    document.create(u"C:\\out\\rep.htm");
    RegisterBase::setStore(nullptr);
    const std::vector<std::string> expected = {
        // First for the object, then for the document.
        "Html.CharSet",           "Html.CharSet",         "Html.HtmlPixDir",
        "Html.ExternalDocDir",    "Html.UseRelative",     "Html.ShowIcons",
        "Html.IconFile",          "Html.SupportOld",      "Html.BodyTags",
        "Html.SuppressImageMaps", "Html.Navig",           "Html.TOCLevel",
        "Html.DontCopy",          "Settings.InstallDir",  "Html.StyleSheet",
        "Html.PassThrough",       "Html.LocateInBrowser", "Html.ScriptNavigator",
        "Settings.TestLevel",     "Html.DiagramType"};
    std::vector<std::string> asked;
    for (const std::string& setting : store->asked) {
        // The style sheet's default asks for the installation directory once more.
        if (asked.empty() || setting != "Settings.InstallDir" || asked.back() != setting) {
            asked.push_back(setting);
        }
    }
    EXPECT_EQ(asked, expected);
}

TEST(DocumentSettings, HaveTheirDefaults) {
    const InstalledSettingsStore store;
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    DocumentSettings settings;
    settings.readPlaces(RegisterCache(), "C:\\out");
    settings.readTexts(RegisterCache());
    EXPECT_EQ(settings.pixDir, "C:\\out\\pix");
    EXPECT_EQ(settings.externalDocDir, "C:\\out\\docs");
    EXPECT_TRUE(settings.useRelative);
    EXPECT_TRUE(settings.showIcons);
    EXPECT_EQ(settings.iconFile, "");
    EXPECT_FALSE(settings.supportOld);
    EXPECT_EQ(settings.bodyTags, "");
    EXPECT_FALSE(settings.suppressImageMaps);
    EXPECT_EQ(settings.navigation, 1);
    EXPECT_EQ(settings.tocLevel, 50U);
    EXPECT_EQ(settings.dontCopy, "");
    EXPECT_EQ(settings.installDir, "");
    EXPECT_EQ(settings.styleSheet, "default.css");
    EXPECT_FALSE(settings.passThrough);
    EXPECT_TRUE(settings.locateInBrowser);
    EXPECT_EQ(settings.testLevel, 0);
    EXPECT_TRUE(settings.hasContentsPages());
    EXPECT_FALSE(settings.hasArrows());
}

class Settings : public testing::DocumentTest {};

TEST_F(Settings, PlaceThePictureDirectory) {
    html("HtmlPixDir", "img\\small");
    open();
    EXPECT_TRUE(files.directoryExists("C:\\out\\img\\small"));
}

TEST_F(Settings, MayPlaceDirectoriesAnywhere) {
    html("HtmlPixDir", "D:\\img");
    html("ExternalDocDir", "\\documents");
    files.put("C:\\a.doc", "doc");
    open();
    doc().insertXref(u"x", u"C:\\a.doc");
    EXPECT_TRUE(files.directoryExists("D:\\img"));
    EXPECT_TRUE(isWritten("\\documents\\a.doc"));
}

TEST_F(Settings, TakeNavigZeroAsOne) {
    html("Navig", "0");
    open();
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\rep_dtl.htm"));
    EXPECT_TRUE(isWritten("C:\\out\\rep.htm")) << "the start page";
    EXPECT_TRUE(isWritten("C:\\out\\rep_cnt.htm"));
}

TEST_F(Settings, MakeNoContentsWithoutTheirBit) {
    html("Navig", "2");
    open();
    doc().close();
    EXPECT_FALSE(isWritten("C:\\out\\rep_dtl.htm"));
    EXPECT_FALSE(isWritten("C:\\out\\rep_cnt.htm"));
    EXPECT_FALSE(isWritten("C:\\out\\rep_toc.dat"));
}

TEST_F(Settings, AreOverriddenFromTheNextCreateOn) {
    open();
    EXPECT_EQ(doc().overrideRegistry(u"Html", u"BodyTags", u"TEXT=red", 2), 0);
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY  >"), std::string::npos);
    open();
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY TEXT=red >"), std::string::npos);
}

TEST_F(Settings, AreOverriddenByNumbersBooleansAndTheRest) {
    doc().overrideRegistry(u"Html", u"TOCLevel", u"1", 1);
    doc().overrideRegistry(u"Html", u"PassThrough", u"true", 3);
    doc().overrideRegistry(u"Html", u"BodyTags", u"X", 77);
    open();
    doc().setStyle(u"Heading 2");
    doc().insertText(u"a<<b");
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY X >"), std::string::npos);
    EXPECT_NE(out("rep.htm").find("<H2>a&lt;&lt;b</H2>"), std::string::npos);
}

TEST_F(Settings, OfTheOtherGroupAreNotOverridden) {
    files.put("D:\\other\\default.css", "other");
    doc().overrideRegistry(u"Settings", u"InstallDir", u"D:\\other", 2);
    doc().overrideRegistry(u"Settings", u"TestLevel", u"1", 1);
    open();
    EXPECT_EQ(out("default.css"), "P { }\n");
    doc().startHeader();
    doc().insertField(1);
    doc().endHeader();
    EXPECT_EQ(header().find("XX"), std::string::npos);
}

TEST_F(Settings, OverrideOneDocumentOnly) {
    doc().overrideRegistry(u"Html", u"BodyTags", u"X", 2);
    renew();
    open();
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY  >"), std::string::npos);
}

TEST_F(Settings, AreOverriddenWithoutATraceLine) {
    doc().overrideRegistry(u"Html", u"BodyTags", u"X", 2);
    EXPECT_EQ(traced(), "");
}

/// The host's profile of the modelling tool, on the disk: that is where a system's own
/// private-profile call looks.
class IniFileValues : public testing::DocumentTest, private AppProfileInterface {
protected:
    IniFileValues() : before_(AppProfileInterface::setInterface(this)) {
        place.put("default.css", "");
        place.put("toc2.jar", "new applet");
        place.put("toc2_OLD.jar", "old applet");
        setting("Settings", "InstallDir", place.path());
    }
    ~IniFileValues() override {
        AppProfileInterface::setInterface(before_);
        static_cast<void>(FileSystem::native().setCurrentDirectory(startedIn_));
    }
    IniFileValues(const IniFileValues&) = delete;
    IniFileValues& operator=(const IniFileValues&) = delete;

    /// Puts the file where the host says that it is, as a document in that encoding sees it.
    void ini(const std::string& lines,
             const TextEncoding& encoding = TextEncoding::codePage()) const {
        const TextEncoding::Scope scope(encoding);
        const std::string text = "[Quillmark]\n" + lines;
        const std::string_view piece = text;
        ASSERT_EQ(SysFile::writeWhole(place.file(iniName), {&piece, 1}), WriteResult::done);
    }
    void openOnDisk() {
        const std::string name = place.file("out\\rep.htm").str();
        doc().create(testing::wide(name));
    }
    /// Whether a document is found by its file part in the directory of external documents.
    bool expandsNames() {
        openOnDisk();
        FileSystem::native().makeDirectories(place.file("out\\docs"));
        place.put("out\\docs\\a.doc", "doc");
        doc().insertXref(u"x", u"a.doc");
        doc().close();
        return place.content("out\\rep.htm").value_or("").find("docs/a.doc") != std::string::npos;
    }
    /// The applet that a document with contents comes with.
    std::string applet() {
        html("Navig", "1");
        openOnDisk();
        doc().close();
        return place.content("out\\toc2.jar").value_or("(none)");
    }

    TempDir place;
    /// As the host gives it.
    std::string iniName = "tool.ini";

private:
    [[nodiscard]] OrxString profilePath() const override { return place.file(iniName); }

    OrxString startedIn_ = FileSystem::native().currentDirectory();
    AppProfileInterface* before_;
    InstalledFileSystem disk_{FileSystem::native()};
};

TEST_F(IniFileValues, AreReadByADocumentInUtf8FromAFileOfAnyName) {
    html("CharSet", "UTF-8");
    renew();
    iniName = "\xE8\xA8\xAD\xE5\xAE\x9A.ini";
    ini("ExpandRelativeDocumentNames=FALSE\n", TextEncoding::utf8());
    EXPECT_FALSE(expandsNames());
}

TEST_F(IniFileValues, AreReadByADocumentInUtf8FromANameInTheCodePage) {
    html("CharSet", "UTF-8");
    renew();
    iniName =
        "Gr\xF6\xDF"
        "e.ini";
    ini("ExpandRelativeDocumentNames=FALSE\n");
    EXPECT_FALSE(expandsNames());
}

TEST_F(IniFileValues, ExpandNamesByDefault) {
    EXPECT_TRUE(expandsNames());
    ini("ExpandRelativeDocumentNames=TRUE\n");
    EXPECT_TRUE(expandsNames());
}

TEST_F(IniFileValues, ExpandNoNamesWhenFalseInAnyCase) {
    ini("ExpandRelativeDocumentNames=FALSE\n");
    EXPECT_FALSE(expandsNames());
    ini("ExpandRelativeDocumentNames=faLSe\n");
    EXPECT_FALSE(expandsNames());
}

TEST_F(IniFileValues, ExpandNamesForEveryOtherText) {
    ini("ExpandRelativeDocumentNames=no\n");
    EXPECT_TRUE(expandsNames());
    ini("ExpandRelativeDocumentNames=\n");
    EXPECT_TRUE(expandsNames());
}

TEST_F(IniFileValues, ExpandNamesAgainInTheNextDocument) {
    ini("ExpandRelativeDocumentNames=FALSE\n");
    EXPECT_FALSE(expandsNames());
    ini("");
    EXPECT_TRUE(expandsNames());
}

TEST_F(IniFileValues, ChooseTheAppletForJavaBeforeSeven) {
    ini("UseJavaPre7=TRUE\n");
    EXPECT_EQ(applet(), "old applet");
}

TEST_F(IniFileValues, CompareTheJavaSwitchWithCase) {
    ini("UseJavaPre7=true\n");
    EXPECT_EQ(applet(), "new applet");
}

TEST_F(IniFileValues, NeverGoBackFromTheOldJava) {
    ini("UseJavaPre7=TRUE\n");
    EXPECT_EQ(applet(), "old applet");
    ini("UseJavaPre7=FALSE\n");
    EXPECT_EQ(applet(), "old applet");
}

}  // namespace
}  // namespace quillmark
