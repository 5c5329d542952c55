#include "contents/support_files.h"

#include <gtest/gtest.h>

#include "contents/contents_fixture.h"
#include "support/capturing_trace.h"
#include "support/failing_file_system.h"

namespace quillmark {
namespace {

using Names = std::vector<std::string>;

class SupportFiles : public testing::ContentsTest {
protected:
    void install(const char* name) { files.put(OrxString("C:\\inst\\") + name, name); }

    CapturingTrace lines;
};

TEST_F(SupportFiles, CopiesTheAppletItsLaunchFileAndTheIcons) {
    for (const char* const name : {"toc2.jar", "toc2_OLD.jar", "toc2.jnlp", "icons.zip"}) {
        install(name);
    }
    const IconArchives archives = copyContentsSupportFiles(context);
    EXPECT_EQ(archives.icons, "C:\\out\\pix\\icons.zip");
    EXPECT_EQ(archives.userIcons, "");
    EXPECT_EQ(written("toc2.jar"), "toc2.jar");
    EXPECT_EQ(written("toc2.jnlp"), "toc2.jnlp");
    EXPECT_EQ(written("pix\\icons.zip"), "icons.zip");
    EXPECT_EQ(written("toc2_OLD.jar"), "(none)");
    EXPECT_EQ(lines.text(), "");
}

TEST_F(SupportFiles, CopiesTheOldAppletUnderTheUsualNameAndNoLaunchFile) {
    for (const char* const name : {"toc2.jar", "toc2_OLD.jar", "toc2.jnlp"}) {
        install(name);
    }
    useOldJava();
    copyContentsSupportFiles(context);
    EXPECT_EQ(written("toc2.jar"), "toc2_OLD.jar");
    EXPECT_EQ(written("toc2_OLD.jar"), "(none)");
    EXPECT_EQ(written("toc2.jnlp"), "(none)");
}

TEST_F(SupportFiles, CopiesTheUsersIconsFromWhereTheyAre) {
    files.put("D:\\icons\\mine.zip", "mine");
    context.iconFile = "D:\\icons\\mine.zip";
    EXPECT_EQ(copyContentsSupportFiles(context).userIcons, "C:\\out\\pix\\mine.zip");
    EXPECT_EQ(written("pix\\mine.zip"), "mine");
}

TEST_F(SupportFiles, CopiesTheIconsEvenWhenTheyAreNotShown) {
    install("icons.zip");
    context.showIcons = false;
    copyContentsSupportFiles(context);
    EXPECT_EQ(written("pix\\icons.zip"), "icons.zip");
}

TEST_F(SupportFiles, PassesOverWhatIsMissingInSilence) {
    context.iconFile = "D:\\icons\\mine.zip";
    const IconArchives archives = copyContentsSupportFiles(context);
    EXPECT_EQ(archives.icons, "C:\\inst\\icons.zip");
    EXPECT_EQ(archives.userIcons, "D:\\icons\\mine.zip");
    EXPECT_EQ(files.fileNames(), Names{});
    EXPECT_EQ(lines.text(), "");
}

TEST_F(SupportFiles, AreNotThoseOfTheCurrentDirectoryWithoutAnInstallation) {
    for (const char* const name : {"toc2.jar", "toc2.jnlp", "icons.zip"}) {
        install(name);
    }
    ASSERT_TRUE(files.setCurrentDirectory("C:\\inst"));
    context.installDir = "";
    EXPECT_EQ(copyContentsSupportFiles(context).icons, "\\icons.zip");
    EXPECT_EQ(written("toc2.jar"), "(none)");
    EXPECT_EQ(written("toc2.jnlp"), "(none)");
    files.put("\\toc2.jar", "of the root");
    copyContentsSupportFiles(context);
    EXPECT_EQ(written("toc2.jar"), "of the root");
}

TEST_F(SupportFiles, LeavesWhatMustNotBeCopiedWhereItIs) {
    install("toc2.jar");
    install("icons.zip");
    copier = FileCopier("exe.zip");
    const IconArchives archives = copyContentsSupportFiles(context);
    EXPECT_EQ(archives.icons, "C:\\inst\\icons.zip");
    EXPECT_EQ(written("pix\\icons.zip"), "(none)");
    EXPECT_EQ(written("toc2.jar"), "toc2.jar");
    EXPECT_EQ(lines.text(), "");
}

TEST_F(SupportFiles, TracesCopiesThatFailInTheOrderTried) {
    for (const char* const name : {"toc2.jar", "toc2.jnlp", "icons.zip"}) {
        install(name);
    }
    files.put("D:\\mine.zip", "mine");
    context.iconFile = "D:\\mine.zip";
    FailingFileSystem failing(files);
    failing.failAll(FailingFileSystem::Operation::copyFile);
    const InstalledFileSystem failingInForce(failing);
    const IconArchives archives = copyContentsSupportFiles(context);
    EXPECT_EQ(archives.icons, "C:\\inst\\icons.zip");
    EXPECT_EQ(archives.userIcons, "D:\\mine.zip");
    EXPECT_EQ(lines.text(),
              "ERR Could not copy file C:\\inst\\toc2.jar to directory C:\\out\n"
              "ERR Could not copy file C:\\inst\\toc2.jnlp to directory C:\\out\n"
              "ERR Could not copy file C:\\inst\\icons.zip to directory C:\\out\\pix\n"
              "ERR Could not copy file D:\\mine.zip to directory C:\\out\\pix\n");
}

TEST_F(SupportFiles, RefersToAnOlderCopyWhenTheNewOneFails) {
    install("icons.zip");
    files.put("C:\\out\\pix\\icons.zip", "older");
    FailingFileSystem failing(files);
    failing.failAll(FailingFileSystem::Operation::copyFile);
    const InstalledFileSystem failingInForce(failing);
    EXPECT_EQ(copyContentsSupportFiles(context).icons, "C:\\out\\pix\\icons.zip");
    EXPECT_EQ(lines.text(),
              "ERR Could not copy file C:\\inst\\icons.zip to directory C:\\out\\pix\n");
}

}  // namespace
}  // namespace quillmark
