// The behaviour of the native services on Windows.
#ifdef _WIN32

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "platform/files/drive_table.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/files/windows/native_file.h"
#include "platform/sys_shell.h"
#include "platform/windows/windows_api.h"
#include "settings/settings_store.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

TEST(NativeName, IsTheDriversWithBackslashes) {
    EXPECT_EQ(nativePath("C:/out\\caf\xE9.htm"), "C:\\out\\caf\xE9.htm");
    EXPECT_EQ(nativePath(std::string("a\0b", 3)), "");
    EXPECT_EQ(driverPath("C:/out/caf\xC3\xA9"), "C:\\out\\caf\xE9");
}

TEST(NativeName, IsNotSentThroughTheDriveTable) {
    DriveTable::set('C', "D:\\other");
    EXPECT_EQ(nativePath("C:\\out"), "C:\\out");
    DriveTable::clear();
}

TEST(NativeFile, MayHaveALongName) {
    const TempDir dir;
    const OrxString deep = dir.file(std::string(100, 'a') + "\\" + std::string(100, 'b') + "\\" +
                                    std::string(100, 'c'));
    ASSERT_TRUE(SysDirectory::create(deep));
    const OrxString name = deep + "\\a.htm";
    EXPECT_EQ(SysFile::writeWhole(name, {}), WriteResult::done);
    EXPECT_TRUE(SysFile::exists(name));
    EXPECT_TRUE(SysFile::deleteFile(name));
}

TEST(NativeFile, CopiedFromAReadOnlyOneCanBeCopiedAgain) {
    const TempDir dir;
    dir.put("a.css", "x");
    ASSERT_TRUE(SetFileAttributesA(dir.nativeFile("a.css").c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_TRUE(SysFile::copy(dir.file("a.css"), dir.file("b.css")));
    EXPECT_TRUE(SysFile::copy(dir.file("a.css"), dir.file("b.css")));
    SetFileAttributesA(dir.nativeFile("a.css").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(NativeFile, IsNotCopiedFromADevice) {
    const TempDir dir;
    EXPECT_FALSE(SysFile::copy("NUL", dir.file("copy")));
    EXPECT_FALSE(dir.content("copy"));
}

TEST(NativeFile, DistinguishesAFailedReadFromTheEnd) {
    const TempDir dir;
    dir.put("a.txt", "text");
    const auto file =
        makeInputFile(Handle(CreateFileA(dir.nativeFile("a.txt").c_str(), GENERIC_WRITE, 0, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
    ASSERT_NE(file, nullptr);
    std::array<char, 4> buffer{};
    EXPECT_EQ(file->read(buffer), 0U);
    EXPECT_TRUE(file->failed());
}

class UserStore : public testing::Test {
protected:
    static constexpr const char* group = "TestOfTheDriver";
    static constexpr const char* key = "Software\\Zorvane\\Quillmark\\TestOfTheDriver";

    ~UserStore() override { RegDeleteKeyA(HKEY_CURRENT_USER, key); }

    std::shared_ptr<SettingsStore> store = makeUserSettingsStore();
};

TEST_F(UserStore, KeepsTextsInTheUsersBranchOfTheRegistry) {
    EXPECT_EQ(store->read(group, "Name"), std::nullopt);
    // Stores hold UTF-8.
    const OrxString text(" caf\xC3\xA9 \xE2\x82\xAC \xE6\x97\xA5\n");
    EXPECT_TRUE(store->write(group, "Name", text));
    EXPECT_EQ(store->read("TESTOFTHEDRIVER", "name"), text);
    EXPECT_TRUE(store->write(group, "Name", ""));
    EXPECT_EQ(store->read(group, "Name"), "");
    EXPECT_EQ(store->problem(), "");
    EXPECT_EQ(userSettingsLocation(), "HKEY_CURRENT_USER\\Software\\Zorvane\\Quillmark");
}

TEST_F(UserStore, KeepsATextOfAnyLength) {
    const std::string text(5000, 'x');
    EXPECT_TRUE(store->write(group, "Name", text));
    EXPECT_EQ(store->read(group, "Name"), text);
}

TEST_F(UserStore, ReadsANumberThatSomebodyStored) {
    EXPECT_TRUE(store->write(group, "Other", ""));
    HKEY opened = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, key, 0, KEY_SET_VALUE, &opened), ERROR_SUCCESS);
    const DWORD number = 3;
    RegSetValueExA(opened, "Navig", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                   sizeof number);
    RegCloseKey(opened);
    EXPECT_EQ(store->read(group, "Navig"), "3");
}

TEST_F(UserStore, RejectsATextWithAZero) {
    EXPECT_FALSE(store->write(group, "Name", std::string("a\0b", 3)));
}

TEST(Shell, StartsAProgramAndDoesNotStartAMissingOne) {
    const TempDir dir;
    std::array<char, MAX_PATH> system{};
    GetSystemDirectoryA(system.data(), MAX_PATH);
    const OrxString shell = OrxString(system.data()) + "\\cmd.exe";
    EXPECT_GE(SysShell::start(shell, {"/c", "mkdir", dir.file("made by it")}), SysShell::started);
    EXPECT_LT(SysShell::start(dir.file("none.exe"), {}), SysShell::started);
    EXPECT_LT(SysShell::start("", {}), SysShell::started);
    for (int i = 0; i < 500 && !SysDirectory::exists(dir.file("made by it")); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(SysDirectory::exists(dir.file("made by it")));
}

}  // namespace
}  // namespace quillmark

#endif
