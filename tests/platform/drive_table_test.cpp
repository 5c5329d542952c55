#include "platform/files/drive_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quillmark {
namespace {

class Drives : public testing::Test {
protected:
    ~Drives() override { DriveTable::clear(); }
};

TEST_F(Drives, AreMissingUnlessSet) {
    EXPECT_EQ(DriveTable::find('C'), std::nullopt);
}

TEST_F(Drives, AreFoundByTheirLetterInAnyCase) {
    DriveTable::set('c', "/data/c");
    DriveTable::set('Z', "/data/z");
    EXPECT_EQ(DriveTable::find('C'), "/data/c");
    EXPECT_EQ(DriveTable::find('c'), "/data/c");
    EXPECT_EQ(DriveTable::find('z'), "/data/z");
    EXPECT_EQ(DriveTable::find('D'), std::nullopt);
}

TEST_F(Drives, AreRemovedByAnEmptyDirectory) {
    DriveTable::set('C', "/data/c");
    DriveTable::set('C', "");
    EXPECT_EQ(DriveTable::find('C'), std::nullopt);
}

TEST_F(Drives, AreRemovedByAClear) {
    DriveTable::set('C', "/data/c");
    DriveTable::clear();
    EXPECT_EQ(DriveTable::find('C'), std::nullopt);
}

TEST_F(Drives, HaveLettersOnly) {
    DriveTable::set('1', "/data");
    EXPECT_EQ(DriveTable::find('1'), std::nullopt);
    EXPECT_EQ(DriveTable::find(':'), std::nullopt);
}

TEST(NameOnADrive, IsInTheDirectoryOfTheDrive) {
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "\\out\\caf\xC3\xA9.htm"),
              "/data/c/out/caf\xC3\xA9.htm");
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "a.htm"), "/data/c/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/data/c", ""), "/data/c");
    EXPECT_EQ(DriveTable::nameUnder("/data/c/", "\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/", "/a.htm"), "/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/", ""), "/");
}

TEST(NameOnADrive, NeverLeadsAboveTheDrive) {
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "\\..\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "..\\a.htm"), "/data/c/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "/out/../../../side/a.htm"), "/data/c/side/a.htm");
    EXPECT_EQ(DriveTable::nameUnder("/data/c", "\\out\\..\\a.htm"), "/data/c/a.htm");
}

}  // namespace
}  // namespace quillmark
