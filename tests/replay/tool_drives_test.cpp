#include <gtest/gtest.h>

#include "platform/system_facts.h"
#include "replay/tool_fixture.h"

namespace quillmark::replay {
namespace {

/// Names that begin with a drive letter, on a system without drives.
class ReplayToolDrives : public ReplayTool {
protected:
    void SetUp() override {
        if (system_facts::hasDrives()) {
            GTEST_SKIP() << "the system has drives of its own";
        }
    }
};

TEST_F(ReplayToolDrives, PutsFilesOfADriveUnderItsDirectory) {
    const ToolResult result =
        run({"-q", "--drive", "C=disk", "--trace", "10", "--log", "c:\\log.txt", "-"},
            "[\"create\",\"C:\\\\out\\\\rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(exists("disk/out/rep_dtl.htm"));
    EXPECT_EQ(lines("disk/log.txt").substr(0, 35), "dochtml->create(\"C:\\out\\rep.htm\");\n");
}

TEST_F(ReplayToolDrives, KeepsEverythingOfADriveUnderItsDirectory) {
    const ToolResult result =
        run({"-q", "--drive", "C=disk", "--trace", "10", "--log", "C:\\..\\logs\\log.txt", "-"},
            "[\"create\",\"C:\\\\rep.htm\"]\n[\"pushDirectory\",\"..\\\\side\"]\n"
            "[\"insertText\",\"x\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(exists("disk/side/rep_dtl.htm"));
    EXPECT_FALSE(exists("side"));
    EXPECT_TRUE(exists("disk/logs/log.txt"));
    EXPECT_FALSE(exists("logs"));
}

TEST_F(ReplayToolDrives, PutsFilesOfAnUnmappedDriveIntoTheWorkingDirectory) {
    const ToolResult result =
        run({"-q", "-"}, "[\"create\",\"C:\\\\out\\\\rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(exists("C:/out/rep_dtl.htm"));
    EXPECT_TRUE(exists("C:/out/rep_toc.dat"));
    EXPECT_TRUE(exists("C:/out/rep.htm"));
}

TEST_F(ReplayToolDrives, ReadsItsOwnFilesFromADrive) {
    makeDirectory("disk");
    dir_.put("disk/store.ini", "[Html]\nNavig=2\n");
    const ToolResult result = run({"-q", "--drive=C=disk", "--settings=C:store.ini", "-"},
                                  "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(exists("rep.htm"));
    EXPECT_FALSE(exists("rep_dtl.htm"));
}

TEST_F(ReplayToolDrives, RefusesADamagedSettingsFileOnADrive) {
    makeDirectory("disk");
    dir_.put("disk/store.ini", "[Html]\noops\nNavig=2\n");
    const ToolResult result = run({"--drive", "C=disk", "--settings", "C:\\store.ini", "-"},
                                  "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "dochtml-replay: Line 2 of the settings file " +
                                 native("disk/store.ini") +
                                 " is neither a section nor a setting\n");
    EXPECT_FALSE(exists("rep_dtl.htm"));
}

}  // namespace
}  // namespace quillmark::replay
