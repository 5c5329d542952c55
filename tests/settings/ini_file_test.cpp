#include "settings/ini_file.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "support/temp_dir.h"

namespace quillmark {
namespace {

class IniFileOnDisk : public testing::Test {
protected:
    [[nodiscard]] OrxString read(const OrxString& key, std::size_t bufferSize = 4096) const {
        return IniFile::read(dir.file("Veltrano.ini"), "Quillmark", key, "default", bufferSize);
    }
    void put(const std::string& text) const { dir.put("Veltrano.ini", text); }

    TempDir dir;
};

TEST_F(IniFileOnDisk, GivesTheValueOfAKey) {
    put("[Other]\r\nUseJavaPre7=no\r\n[Quillmark]\r\nUseJavaPre7=TRUE\r\nEmpty=\r\n");
    EXPECT_EQ(read("UseJavaPre7"), "TRUE");
    EXPECT_EQ(read("usejavapre7"), "TRUE");
    EXPECT_EQ(read("Empty"), "");
}

TEST_F(IniFileOnDisk, GivesTheDefaultForWhatIsMissing) {
    EXPECT_EQ(read("UseJavaPre7"), "default");
    put("[Quillmark]\r\n");
    EXPECT_EQ(read("UseJavaPre7"), "default");
    put("[Other]\r\nUseJavaPre7=TRUE\r\n");
    EXPECT_EQ(read("UseJavaPre7"), "default");
}

TEST_F(IniFileOnDisk, TrimsBlanksRemovesQuotesAndSkipsComments) {
    put("[quillmark]\r\n;UseJavaPre7=1\r\n  UseJavaPre7 = \" TRUE \" \r\n");
    EXPECT_EQ(read("UseJavaPre7"), " TRUE ");
}

TEST_F(IniFileOnDisk, CutsWhatTheBufferCannotHold) {
    put("[Quillmark]\r\nKey=abcdef\r\n");
    EXPECT_EQ(read("Key", 4), "abc");
    EXPECT_EQ(read("Key", 7), "abcdef");
    EXPECT_EQ(read("None", 4), "def");
}

TEST_F(IniFileOnDisk, GivesTheBytesOfTheCodePage) {
    put("[Quillmark]\r\nKey=caf\xE9\r\n");
    EXPECT_EQ(read("Key"), "caf\xE9");
}

TEST_F(IniFileOnDisk, IsNotFoundUnderANameWithAZero) {
    put("[Quillmark]\r\nKey=value\r\n");
    const OrxString cut = dir.file(std::string("Veltrano.ini\0y", 14));
    EXPECT_EQ(IniFile::read(cut, "Quillmark", "Key", "default", 4096), "default");
}

}  // namespace
}  // namespace quillmark
