// The behaviour of SysShell on POSIX systems.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <string>
#include <string_view>
#include <thread>

#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/sys_shell.h"
#include "support/environment_variable.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

/// Waits until another process has written a text to a file.
std::string eventually(const TempDir& dir, const OrxString& name) {
    for (int i = 0; i < 500; ++i) {
        std::string text = dir.content(name).value_or("");
        if (text.ends_with("\n")) {
            return text;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return "(never came)";
}

void putProgram(const TempDir& dir, const OrxString& name, std::string_view script) {
    dir.put(name, script);
    chmod(dir.nativeFile(name).c_str(), 0755);
}

TEST(Shell, StartsAProgramWithItsArguments) {
    const TempDir dir;
    putProgram(dir, "zip.exe",
               "#!/bin/sh\nprintf '<%s>' \"$@\" > \"$0.tmp\"; echo >> \"$0.tmp\"; "
               "mv \"$0.tmp\" \"$0.txt\"\n");
    EXPECT_EQ(SysShell::start(dir.file("zip.exe"), {"-m", "-q", "\\my out\\a \" -T.zip"}),
              SysShell::started);
    EXPECT_EQ(eventually(dir, "zip.exe.txt"), "<-m><-q></my out/a \" -T.zip>\n");
}

TEST(Shell, DoesNotWaitForTheProgramAndLeavesNoChild) {
    const TempDir dir;
    putProgram(dir, "slow", "#!/bin/sh\nread line < \"$0.fifo\"; echo \"$line\" > \"$0.txt\"\n");
    ASSERT_EQ(mkfifo(dir.nativeFile("slow.fifo").c_str(), 0600), 0);
    // It returns although the program cannot end before the next line is written.
    EXPECT_EQ(SysShell::start(dir.file("slow"), {}), SysShell::started);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    dir.put("slow.fifo", "go on\n");
    EXPECT_EQ(eventually(dir, "slow.txt"), "go on\n");
}

TEST(Shell, DoesNotStartAFileThatIsNotAProgram) {
    const TempDir dir;
    dir.put("data", "text");
    SysDirectory::create(dir.file("dir"));
    putProgram(dir, "broken", "#!/none/interpreter\n");
    putProgram(dir, "foreign", "MZ, a program of another system\n");
    EXPECT_LT(SysShell::start(dir.file("none"), {}), SysShell::started);
    EXPECT_LT(SysShell::start(dir.file("data"), {}), SysShell::started);
    EXPECT_LT(SysShell::start(dir.file("dir"), {}), SysShell::started);
    EXPECT_LT(SysShell::start(dir.file("broken"), {}), SysShell::started);
    EXPECT_LT(SysShell::start(dir.file("foreign"), {}), SysShell::started);
    EXPECT_LT(SysShell::start("", {}), SysShell::started);
}

TEST(Shell, DoesNotLookForAProgramOnTheSearchPath) {
    EXPECT_LT(SysShell::start("true", {}), SysShell::started);
}

TEST(Shell, OpensAFileWithTheDesktopsTool) {
    const TempDir dir;
    putProgram(dir, "xdg-open",
               "#!/bin/sh\nprintf '%s\\n' \"$1\" > \"${0%/*}/tmp\"; mv \"${0%/*}/tmp\" "
               "\"${0%/*}/opened\"\n");
    const EnvironmentVariable path("PATH", dir.native() + ":/usr/bin:/bin");
    SysShell::open("\\out\\rep.htm");
    EXPECT_EQ(eventually(dir, "opened"), "/out/rep.htm\n");
}

TEST(Shell, OpensNothingForAnEmptyName) {
    const TempDir dir;
    putProgram(dir, "xdg-open",
               "#!/bin/sh\ncd \"${0%/*}\"; printf '%s\\n' \"$1\" >> list\n"
               "[ \"$1\" != /last ] || mv list opened\n");
    const EnvironmentVariable path("PATH", dir.native() + ":/usr/bin:/bin");
    SysShell::open(std::string("a\0b", 3));
    SysShell::open("");
    SysShell::open("\\last");
    EXPECT_EQ(eventually(dir, "opened"), "/last\n");
}

TEST(Shell, ToleratesAMissingDesktop) {
    const EnvironmentVariable path("PATH", "/none");
    EXPECT_NO_THROW(SysShell::open("\\out\\rep.htm"));
}

/// The result of `start` in a process that has closed all its descriptors.
int startWithoutStreams(const OrxString& program) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr int moreThanAreOpen = 256;
        for (int number = 0; number < moreThanAreOpen; ++number) {
            close(number);
        }
        _exit(SysShell::start(program, {}));
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status);
}

TEST(Shell, ReportsAFailedStartIfTheHostHasClosedItsStreams) {
    const TempDir dir;
    putProgram(dir, "broken", "#!/none/interpreter\n");
    EXPECT_LT(startWithoutStreams(dir.file("broken")), SysShell::started);
}

TEST(Shell, GivesAProgramNullStreamsAndNoOtherDescriptors) {
    const TempDir dir;
    putProgram(dir, "listing",
               // Not through a pipe, since the shell itself would have that open for a moment.
               "#!/bin/sh\n(readlink /proc/$$/fd/* > \"$0.all\")\n"
               "grep -v listing \"$0.all\" > \"$0.tmp\"\n"
               "echo >> \"$0.tmp\"; mv \"$0.tmp\" \"$0.txt\"\n");
    EXPECT_EQ(startWithoutStreams(dir.file("listing")), SysShell::started);
    EXPECT_EQ(eventually(dir, "listing.txt"), "/dev/null\n/dev/null\n/dev/null\n\n");
}

}  // namespace
}  // namespace quillmark

#endif
