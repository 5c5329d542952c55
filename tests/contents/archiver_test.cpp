#include "contents/tree/archiver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "support/capturing_trace.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

class Archiver : public ::testing::Test {
protected:
    Archiver() { dir.put("rep_toc.dat", "(TREE\n)\n"); }

    OrxString pack() { return packDataFile(dir.file("rep_toc.dat"), install.path(), Trace()); }

    TempDir dir;
    TempDir install;
    CapturingTrace trace;
};

TEST_F(Archiver, LeavesThePlainFileWhenItIsMissingAndTracesIt) {
    EXPECT_EQ(pack(), dir.file("rep_toc.dat"));
    EXPECT_EQ(trace.text(), "ERR: running " + install.path().str() + "\\zip.exe\n");
    EXPECT_EQ(dir.content("rep_toc.dat"), "(TREE\n)\n");
}

TEST_F(Archiver, IsSilentWhenNobodyWantsErrors) {
    const CapturingTrace deaf(0);
    EXPECT_EQ(pack(), dir.file("rep_toc.dat"));
    EXPECT_EQ(deaf.text(), "");
}

TEST_F(Archiver, DeletesAnOlderArchiveEvenWhenNothingIsPacked) {
    dir.put("rep_toc.dat.zip", "old");
    EXPECT_EQ(pack(), dir.file("rep_toc.dat"));
    EXPECT_EQ(dir.content("rep_toc.dat.zip"), std::nullopt);
}

TEST_F(Archiver, MustNotBeADirectory) {
    std::filesystem::create_directory(install.nativeFile("zip.exe"));
    EXPECT_EQ(pack(), dir.file("rep_toc.dat"));
    EXPECT_EQ(trace.text(), "ERR: running " + install.path().str() + "\\zip.exe\n");
}

TEST_F(Archiver, IsLookedForInTheCurrentDirectoryWithoutAnInstallation) {
    EXPECT_EQ(packDataFile(dir.file("rep_toc.dat"), "", Trace()), dir.file("rep_toc.dat"));
    EXPECT_EQ(trace.text(), "ERR: running zip.exe\n");
}

}  // namespace
}  // namespace quillmark
