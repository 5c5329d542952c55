// The behaviour of the native services on POSIX systems.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <thread>

#include "foundation/orx_exception.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/signal_to_exception.h"
#include "platform/sys_shell.h"
#include "platform/system_facts.h"
#include "settings/ini_file.h"
#include "settings/settings_store.h"
#include "support/environment_variable.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

WriteResult write(const OrxString& name, std::string_view text) {
    return SysFile::writeWhole(name, std::array{text});
}

TEST(NativeName, HasSlashesAndUtf8) {
    EXPECT_EQ(nativePath("\\out\\a.htm"), "/out/a.htm");
    EXPECT_EQ(nativePath("out/sub\\caf\xE9 \x80.htm"), "out/sub/caf\xC3\xA9 \xE2\x82\xAC.htm");
    EXPECT_EQ(nativePath(""), "");
    EXPECT_EQ(nativePath(std::string("a\0b", 3)), "");
}

TEST(NativeName, KeepsADriveThatTheTableDoesNotKnow) {
    EXPECT_EQ(nativePath("C:\\out\\a.htm"), "C:/out/a.htm");
}

TEST(NativeName, IsInTheDirectoryOfItsDrive) {
    DriveTable::set('C', "/data/caf\xC3\xA9");
    EXPECT_EQ(nativePath("C:\\out\\a.htm"), "/data/caf\xC3\xA9/out/a.htm");
    EXPECT_EQ(nativePath("c:/out"), "/data/caf\xC3\xA9/out");
    EXPECT_EQ(nativePath("C:out"), "/data/caf\xC3\xA9/out");
    EXPECT_EQ(nativePath("C:"), "/data/caf\xC3\xA9");
    EXPECT_EQ(nativePath("D:\\out"), "D:/out");
    DriveTable::set('C', "/");
    EXPECT_EQ(nativePath("C:\\out"), "/out");
    DriveTable::clear();
}

TEST(NativeName, DoesNotLeaveItsDriveUpwards) {
    DriveTable::set('C', "/data/c");
    EXPECT_EQ(nativePath("C:\\..\\side\\a.htm"), "/data/c/side/a.htm");
    EXPECT_EQ(nativePath("C:..\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(nativePath("C:\\out\\..\\..\\..\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(nativePath("C:\\.\\..\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(nativePath("C:\\..\\caf\xE9"), "/data/c/caf\xC3\xA9");
    EXPECT_EQ(nativePath("C:\\.."), "/data/c/");
    EXPECT_EQ(nativePath("C:\\..a\\b..\\..."), "/data/c/..a/b../...");
    DriveTable::set('C', "/");
    EXPECT_EQ(nativePath("C:\\..\\a.htm"), "/a.htm");
    DriveTable::clear();
    EXPECT_EQ(nativePath("out\\..\\..\\a.htm"), "out/../../a.htm");
}

TEST(NativeFile, OnADriveIsFoundPastADirectoryThatIsALinkOrMissing) {
    const TempDir dir;
    ASSERT_TRUE(SysDirectory::create(dir.file("disk\\out")));
    ASSERT_EQ(symlink("/", dir.nativeFile("disk\\elsewhere").c_str()), 0);
    DriveTable::set('Q', dir.nativeFile("disk"));
    EXPECT_EQ(write("Q:\\elsewhere\\..\\a.htm", "a"), WriteResult::done);
    EXPECT_EQ(write("Q:\\none\\..\\b.htm", "b"), WriteResult::done);
    DriveTable::clear();
    EXPECT_EQ(dir.content("disk\\a.htm"), "a");
    EXPECT_EQ(dir.content("disk\\b.htm"), "b");
}

TEST(DriverName, HasBackslashesAndTheCodePage) {
    EXPECT_EQ(driverPath("/home/caf\xC3\xA9"), "\\home\\caf\xE9");
}

TEST(NativeFile, IsFoundThroughItsDrive) {
    const TempDir dir;
    DriveTable::set('Q', dir.native());
    EXPECT_TRUE(SysDirectory::create("Q:\\out\\pix"));
    EXPECT_EQ(write("Q:\\out\\pix\\a.htm", "x"), WriteResult::done);
    DriveTable::clear();
    EXPECT_EQ(dir.content("out\\pix\\a.htm"), "x");
}

TEST(NativeFile, ThatTheDiskHasNoRoomForIsReported) {
    const auto file = FileSystem::native().openForWriting("/dev/full");
    ASSERT_NE(file, nullptr);
    for (const std::size_t size : {1U, 3'000'000U}) {
        FileFailure::forget();
        const std::string text(size, 'x');
        EXPECT_FALSE(file->write(std::array<std::string_view, 1>{text}));
        EXPECT_EQ(FileFailure::reason(), "No space left on device");
    }
}

TEST(NativeFile, CopiedToADiskWithoutRoomIsReported) {
    const TempDir dir;
    dir.put("a.gif", "bytes");
    EXPECT_FALSE(SysFile::copy(dir.file("a.gif"), "/dev/full"));
    EXPECT_TRUE(SysFile::exists("/dev/full"));
}

TEST(NativeFile, ThatIsCutShortByALimitIsReportedAndLeavesNoCopy) {
    const TempDir dir;
    dir.put("a.gif", std::string(100000, 'x'));
    // In a separate process, because the limit on file sizes would also affect the test report.
    const pid_t child = fork();
    if (child == 0) {
        const rlimit limit{4096, 4096};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        const bool written = write(dir.file("b.htm"), std::string(5000, 'y')) == WriteResult::done;
        const bool copied = SysFile::copy(dir.file("a.gif"), dir.file("b.gif"));
        _exit(written || copied ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(dir.content("b.gif"));
    EXPECT_FALSE(dir.content("b.htm"));
}

TEST(NativeFile, IsTheSameUnderAnotherName) {
    const TempDir dir;
    dir.put("a.gif", "bytes");
    ASSERT_EQ(link(dir.nativeFile("a.gif").c_str(), dir.nativeFile("hard.gif").c_str()), 0);
    ASSERT_EQ(symlink("a.gif", dir.nativeFile("soft.gif").c_str()), 0);
    EXPECT_TRUE(SysFile::copy(dir.file("a.gif"), dir.file("hard.gif")));
    EXPECT_TRUE(SysFile::copy(dir.file("a.gif"), dir.file("soft.gif")));
    EXPECT_TRUE(SysFile::copy(dir.file("soft.gif"), dir.file("a.gif")));
    EXPECT_EQ(dir.content("a.gif"), "bytes");
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("soft.gif")));
}

TEST(NativeFile, IsWrittenThroughALink) {
    const TempDir dir;
    ASSERT_EQ(symlink("real.htm", dir.nativeFile("link.htm").c_str()), 0);
    EXPECT_FALSE(SysFile::exists(dir.file("link.htm")));
    dir.put("a.htm", "x");
    EXPECT_TRUE(SysFile::copy(dir.file("a.htm"), dir.file("link.htm")));
    EXPECT_EQ(dir.content("real.htm"), "x");
    EXPECT_TRUE(SysFile::exists(dir.file("link.htm")));
}

TEST(NativeFile, CopiedFromAReadOnlyOneCanBeCopiedAgain) {
    const TempDir dir;
    dir.put("a.css", "x");
    ASSERT_EQ(chmod(dir.nativeFile("a.css").c_str(), 0444), 0);
    EXPECT_TRUE(SysFile::copy(dir.file("a.css"), dir.file("b.css")));
    struct stat status {};
    ASSERT_EQ(stat(dir.nativeFile("b.css").c_str(), &status), 0);
    EXPECT_NE(status.st_mode & S_IWUSR, 0U);
}

TEST(NativeFile, OfASizeThatTheSystemDoesNotKnowIsCopiedWhole) {
    const TempDir dir;
    EXPECT_TRUE(SysFile::copy("/proc/self/status", dir.file("status")));
    EXPECT_NE(dir.content("status")->find("Pid:"), std::string::npos);
}

TEST(NativeFile, LeavesNoDescriptorOpen) {
    const auto openDescriptors = [] {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry :
             std::filesystem::directory_iterator("/proc/self/fd")) {
            ++count;
        }
        return count;
    };
    const TempDir dir;
    const std::size_t before = openDescriptors();
    EXPECT_EQ(write(dir.file("a"), "x"), WriteResult::done);
    EXPECT_TRUE(SysFile::copy(dir.file("a"), dir.file("b")));
    EXPECT_EQ(write("/dev/full", "x"), WriteResult::openFailed);
    EXPECT_EQ(write(dir.file("a"), "again"), WriteResult::done);
    EXPECT_TRUE(SysFile::copy(dir.file("a"), dir.file("b")));
    EXPECT_EQ(SysShell::start("/bin/true", {}), SysShell::started);
    EXPECT_LT(SysShell::start("/none", {}), SysShell::started);
    EXPECT_EQ(openDescriptors(), before);
}

TEST(UserConfiguration, IsWhereTheEnvironmentSays) {
    const EnvironmentVariable home("HOME", "/home/me");
    {
        const EnvironmentVariable config("XDG_CONFIG_HOME", "/conf/");
        EXPECT_EQ(system_facts::userConfigurationDirectory(), "\\conf");
        EXPECT_EQ(userSettingsLocation(), "/conf/quillmark/settings.ini");
    }
    const EnvironmentVariable config("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(userSettingsLocation(), "/home/me/.config/quillmark/settings.ini");
}

TEST(UserConfiguration, KeepsTheUsersSettings) {
    const TempDir dir;
    const EnvironmentVariable config("XDG_CONFIG_HOME", dir.native());
    EXPECT_TRUE(makeUserSettingsStore()->write("Html", "Navig", "3"));
    EXPECT_EQ(dir.content("quillmark\\settings.ini"), "[Html]\nNavig=3\n");
}

TEST(TemporaryDirectory, IsTheOneOfTheEnvironmentOrTheSystems) {
    {
        const EnvironmentVariable named("TMPDIR", "/my/tmp/");
        EXPECT_EQ(system_facts::temporaryDirectory(), "\\my\\tmp");
    }
    const EnvironmentVariable notNamed("TMPDIR", std::nullopt);
    EXPECT_EQ(system_facts::temporaryDirectory(), "\\tmp");
}

TEST(IniFileOnPosix, IsInTheConfigurationDirectoryIfItsNameHasNoDirectory) {
    const TempDir dir;
    dir.put("Veltrano.ini", "[Quillmark]\nUseJavaPre7=TRUE\n");
    const EnvironmentVariable config("XDG_CONFIG_HOME", dir.native());
    EXPECT_EQ(IniFile::read("Veltrano.ini", "Quillmark", "UseJavaPre7", "FALSE", 4096), "TRUE");
}

int hostSignals = 0;
void hostHandler(int /*signal*/) {
    ++hostSignals;
}

TEST(SignalGuardOnPosix, PassesSignalsOutsideOnToTheHost) {
    struct sigaction own {};
    struct sigaction before {};
    own.sa_handler = hostHandler;
    ASSERT_EQ(sigaction(SIGSEGV, &own, &before), 0);
    EXPECT_THROW(CSignal2Exception::run([] { raise(SIGSEGV); }), OrxException);
    hostSignals = 0;
    raise(SIGSEGV);
    EXPECT_EQ(hostSignals, 1);
    raise(SIGSEGV);
    EXPECT_EQ(hostSignals, 2);
    sigaction(SIGSEGV, &before, nullptr);
}

TEST(SignalGuardOnPosix, HoldsAfterTheHostBroughtAHandlerOfItsOwn) {
    CSignal2Exception::run([] {});
    struct sigaction own {};
    struct sigaction before {};
    own.sa_handler = hostHandler;
    ASSERT_EQ(sigaction(SIGSEGV, &own, &before), 0);
    EXPECT_THROW(CSignal2Exception::run([] { raise(SIGSEGV); }), OrxException);
    EXPECT_THROW(CSignal2Exception::run([] { raise(SIGFPE); }), OrxException);
    hostSignals = 0;
    raise(SIGSEGV);
    EXPECT_EQ(hostSignals, 1);
    sigaction(SIGSEGV, &before, nullptr);
}

TEST(SignalGuardOnPosix, CallsAHandlerForOneSignalOnce) {
    const pid_t child = fork();
    if (child == 0) {
        struct sigaction own {};
        own.sa_handler = hostHandler;
        own.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGSEGV, &own, nullptr);
        CSignal2Exception::run([] {});
        raise(SIGSEGV);
        raise(SIGSEGV);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
}

TEST(SignalGuardOnPosix, LetsTheSystemEndTheProcessOutside) {
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGSEGV, SIG_DFL);
        CSignal2Exception::run([] {});
        raise(SIGSEGV);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGSEGV);
}

TEST(SignalGuardOnPosix, LetsTheSystemEndTheProcessForAnotherThread) {
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGSEGV, SIG_DFL);
        CSignal2Exception::run([] { std::thread([] { raise(SIGSEGV); }).join(); });
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGSEGV);
}

TEST(SignalGuardOnPosix, LeavesOtherThreadsToTheHost) {
    struct sigaction own {};
    struct sigaction before {};
    own.sa_handler = hostHandler;
    ASSERT_EQ(sigaction(SIGSEGV, &own, &before), 0);
    hostSignals = 0;
    CSignal2Exception::run([] { std::thread([] { raise(SIGSEGV); }).join(); });
    EXPECT_EQ(hostSignals, 1);
    sigaction(SIGSEGV, &before, nullptr);
}

}  // namespace
}  // namespace quillmark

#endif
