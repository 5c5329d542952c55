// The archiver as a program of its own: a shell script, or the real one. Windows has no scripts
// that can stand in for a program, so these cases are not for it.
#ifndef _WIN32

#include "contents/tree/archiver.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>

#include "support/capturing_trace.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

class ArchiverProgram : public ::testing::Test {
protected:
    ArchiverProgram() { dir.put("rep_toc.dat", "(TREE\n)\n"); }

    OrxString pack() { return packDataFile(dir.file("rep_toc.dat"), install.path(), Trace()); }

    TempDir dir;
    TempDir install;
    CapturingTrace trace;
};

/// Puts a shell script in the archiver's place.
void installScript(const TempDir& install, const std::string& script) {
    install.put("zip.exe", "#!/bin/sh\n" + script);
    std::filesystem::permissions(install.nativeFile("zip.exe"), std::filesystem::perms::owner_all);
}

/// The archiver runs on its own; waits until `done` is true, for at most half a minute.
template <typename Condition>
bool eventually(const Condition& done) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(30);
    while (!done()) {
        if (Clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

/// What a finished script reported, or nothing when it never did.
std::optional<std::string> reportOf(const TempDir& dir) {
    eventually([&] { return dir.content("report").has_value(); });
    return dir.content("report");
}

TEST_F(ArchiverProgram, IsGivenItsArgumentsQuotedAgainstBlanks) {
    const TempDir blanks;
    std::filesystem::create_directory(blanks.nativeFile("a b"));
    blanks.put("a b\\rep_toc.dat", "(TREE\n)\n");
    const std::string scratch = dir.nativeFile("scratch");
    installScript(install, "for a in \"$@\"; do echo \"[$a]\"; done > '" + scratch + "'\nmv '" +
                               scratch + "' '" + dir.nativeFile("report") + "'\n");
    const OrxString dataFile = blanks.file("a b\\rep_toc.dat");
    EXPECT_EQ(packDataFile(dataFile, install.path(), Trace()), dataFile + ".zip");
    EXPECT_EQ(reportOf(dir), "[-m]\n[-q]\n[-j]\n[" + nativePath(dataFile) + ".zip]\n[" +
                                 nativePath(dataFile) + "]\n");
    EXPECT_EQ(trace.text(), "");
}

TEST_F(ArchiverProgram, GetsNoArgumentFromAQuoteInAName) {
    const TempDir quotes;
    const std::string scratch = dir.nativeFile("scratch");
    installScript(install, "for a in \"$@\"; do echo \"[$a]\"; done > '" + scratch + "'\nmv '" +
                               scratch + "' '" + dir.nativeFile("report") + "'\n");
    const OrxString dataFile = quotes.file("a\" -T -TT \"touch x_toc.dat");
    EXPECT_EQ(packDataFile(dataFile, install.path(), Trace()), dataFile + ".zip");
    EXPECT_EQ(reportOf(dir), "[-m]\n[-q]\n[-j]\n[" + nativePath(dataFile) + ".zip]\n[" +
                                 nativePath(dataFile) + "]\n");
}

TEST_F(ArchiverProgram, TakesNoNameForAnOption) {
    const std::string scratch = dir.nativeFile("scratch");
    installScript(install, "for a in \"$@\"; do echo \"[$a]\"; done > '" + scratch + "'\nmv '" +
                               scratch + "' '" + dir.nativeFile("report") + "'\n");
    EXPECT_EQ(packDataFile("-T_toc.dat", install.path(), Trace()), "-T_toc.dat.zip");
    EXPECT_EQ(reportOf(dir), "[-m]\n[-q]\n[-j]\n[./-T_toc.dat.zip]\n[./-T_toc.dat]\n");
}

TEST_F(ArchiverProgram, IsNotWaitedFor) {
    // The script goes on only when a file appears that is written after the call has returned.
    installScript(install, "while [ ! -e '" + dir.nativeFile("go") +
                               "' ]; do sleep 0.01; done\necho done > '" +
                               dir.nativeFile("scratch") + "'\nmv '" + dir.nativeFile("scratch") +
                               "' '" + dir.nativeFile("report") + "'\n");
    EXPECT_EQ(pack(), dir.file("rep_toc.dat.zip"));
    EXPECT_EQ(dir.content("report"), std::nullopt);
    dir.put("go", "");
    EXPECT_EQ(reportOf(dir), "done\n");
}

TEST_F(ArchiverProgram, FailsUnnoticed) {
    installScript(install, "exit 12\n");
    EXPECT_EQ(pack(), dir.file("rep_toc.dat.zip"));
    EXPECT_EQ(trace.text(), "");
    EXPECT_EQ(dir.content("rep_toc.dat"), "(TREE\n)\n");
}

TEST_F(ArchiverProgram, ThatIsNotAProgramIsTraced) {
    install.put("zip.exe", "not a program");
    EXPECT_EQ(pack(), dir.file("rep_toc.dat"));
    EXPECT_EQ(trace.text(), "ERR: running " + install.path().str() + "\\zip.exe\n");
}

TEST_F(ArchiverProgram, MovesTheFileIntoTheArchiveWithoutItsDirectory) {
    const std::filesystem::path zip = "/usr/bin/zip";
    if (!std::filesystem::exists(zip)) {
        GTEST_SKIP() << "no zip on this machine";
    }
    std::filesystem::create_symlink(zip, install.nativeFile("zip.exe"));
    dir.put("rep_toc.dat.zip", "an older archive");
    EXPECT_EQ(pack(), dir.file("rep_toc.dat.zip"));
    // The file goes last, when the archive is whole.
    ASSERT_TRUE(eventually([&] { return !dir.content("rep_toc.dat").has_value(); }));
    const std::string archive = dir.content("rep_toc.dat.zip").value_or("");
    EXPECT_EQ(archive.substr(0, 4), "PK\x03\x04");
    EXPECT_NE(archive.find("rep_toc.dat"), std::string::npos);
    EXPECT_EQ(archive.find("/rep_toc.dat"), std::string::npos);
}

}  // namespace
}  // namespace quillmark

#endif
