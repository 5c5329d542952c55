#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "driver/doc_html.h"
#include "platform/files/sys_directory.h"
#include "platform/sys_text.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/memory_settings_store.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

/// A document on the system's own disk, where directories, links and permissions are real.
class FilesOnDisk : public ::testing::Test {
protected:
    FilesOnDisk() {
        SysDirectory::create(dir_.file("inst"));
        dir_.put("inst/default.css", "P { }\n");
        dir_.put("inst/icons.zip", "zip");
        settings_.set("Settings", "InstallDir", dir_.file("inst").view());
    }
    ~FilesOnDisk() override { static_cast<void>(SysDirectory::setCurrentDir(before_)); }

    void open(std::string_view navigation) {
        settings_.set("Html", "Navig", navigation);
        doc_.create(wide("out/rep.htm"));
        trace_.clear();
    }
    [[nodiscard]] std::u16string wide(const OrxString& name) const {
        return SysText::widen(dir_.file(name));
    }
    [[nodiscard]] std::string page(const OrxString& name) const {
        return dir_.content("out/" + name).value_or("(none)");
    }
    [[nodiscard]] bool traced(const std::string& line) const {
        return trace_.text().find(line) != std::string::npos;
    }

    const OrxString before_ = SysDirectory::getCurrentDir();
    TempDir dir_;
    InstalledSettingsStore settings_;
    CapturingExceptionLog exceptions_;
    CapturingTrace trace_;
    DocHtml doc_;
};

TEST_F(FilesOnDisk, ThatAreDirectoriesAreNotFoundAsPictures) {
    SysDirectory::create(dir_.file("album.gif"));
    open("2");
    doc_.insertImage(wide("album.gif"), u"");
    doc_.insertText(u"goes on");
    doc_.close();
    EXPECT_TRUE(traced("ERR File not found: " + dir_.file("album.gif").str() + "\n"));
    EXPECT_NE(page("rep.htm").find("</a>goes on"), std::string::npos);
}

TEST_F(FilesOnDisk, ThatAreDirectoriesAreTakenForBookmarks) {
    SysDirectory::create(dir_.file("folder"));
    open("2");
    doc_.insertXref(u"text", wide("folder"));
    doc_.close();
    EXPECT_NE(page("rep.htm").find("</a>text\n"), std::string::npos);
    EXPECT_TRUE(traced("Unresolved references on page "));
}

TEST_F(FilesOnDisk, MayBeNamedThroughTheParentDirectory) {
    SysDirectory::create(dir_.file("pics"));
    dir_.put("pics/a.gif", "gif");
    open("2");
    doc_.insertImage(wide("out/../pics/a.gif"), u"");
    doc_.close();
    EXPECT_EQ(dir_.content("out/pix/a.gif").value_or("(none)"), "gif");
    EXPECT_NE(page("rep.htm").find("<IMG SRC=\"pix/a.gif\""), std::string::npos);
}

TEST_F(FilesOnDisk, OfAMegabyteAreCopiedForEveryReference) {
    const std::string megabyte(std::size_t{1} << 20U, 'g');
    dir_.put("large.gif", megabyte);
    open("2");
    for (int i = 0; i < 3; ++i) {
        doc_.insertImage(wide("large.gif"), u"");
        EXPECT_EQ(dir_.content("out/pix/large.gif").value_or("(none)"), megabyte);
        std::filesystem::remove(dir_.nativeFile("out/pix/large.gif"));
    }
    doc_.close();
}

TEST_F(FilesOnDisk, AreWrittenAfterTheirDirectoryVanished) {
    open("1");
    doc_.insertText(u"first");
    doc_.insertPageBreak();
    doc_.insertText(u"second");
    std::filesystem::remove_all(dir_.nativeFile("out"));
    doc_.close();
    // The page that ends then finds no place. The copies for the contents make the directory
    // again, so the pages after them are whole.
    const std::string failure =
        "Error opening file: " + dir_.file("out").str() + "\\rep_dtl2.htm\n";
    EXPECT_EQ(exceptions_.messages(), (std::vector<std::string>{"Exception throw: " + failure,
                                                                "Exception catch: " + failure}));
    EXPECT_NE(page("rep_toc.dat").find("\"rep_dtl2.htm#Page 2\""), std::string::npos);
    EXPECT_NE(page("rep_cnt.htm").find("</HTML>"), std::string::npos);
    EXPECT_NE(page("rep.htm").find("</HTML>"), std::string::npos);
}

}  // namespace
}  // namespace quillmark
