#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "platform/files/path_text.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/system_facts.h"

namespace quillmark {
namespace {

TEST(FileExtension, StartsAtTheLastDotOfTheFilePart) {
    EXPECT_EQ(SysFile::getExtension("C:\\out\\rep.htm"), ".htm");
    EXPECT_EQ(SysFile::getExtension("rep.old.html"), ".html");
    EXPECT_EQ(SysFile::getExtension("a."), ".");
    EXPECT_EQ(SysFile::getExtension(".profile"), ".profile");
}

TEST(FileExtension, IsNotTakenFromADirectory) {
    EXPECT_EQ(SysFile::getExtension("C:\\out.d\\rep"), "");
    EXPECT_EQ(SysFile::getExtension("out.d/rep"), "");
    EXPECT_EQ(SysFile::getExtension(""), "");
}

TEST(FilePart, FollowsTheLastSeparatorOrTheDrive) {
    EXPECT_EQ(SysFile::stripDir("C:\\out\\rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::stripDir("out/rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::stripDir("out\\sub/rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::stripDir("C:rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::stripDir("rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::stripDir("C:\\out\\"), "");
    EXPECT_EQ(SysFile::stripDir(""), "");
}

TEST(DirectoryPart, HasNoLastSeparator) {
    EXPECT_EQ(SysFile::getDir("C:\\out\\rep.htm"), "C:\\out");
    EXPECT_EQ(SysFile::getDir("C:\\rep.htm"), "C:");
    EXPECT_EQ(SysFile::getDir("C:rep.htm"), "C:");
    EXPECT_EQ(SysFile::getDir("rep.htm"), "");
    EXPECT_EQ(SysFile::getDir("out\\"), "out");
    EXPECT_EQ(SysFile::getDir(""), "");
}

TEST(DirectoryPart, IsBuiltWithBackslashes) {
    EXPECT_EQ(SysFile::getDir("/home/me/rep.htm"), "\\home\\me");
    EXPECT_EQ(SysFile::getDir("C:/out/sub/rep.htm"), "C:\\out\\sub");
}

TEST(DirectoryPart, OfAFileInTheRootIsTheRoot) {
    EXPECT_EQ(SysFile::getDir("\\rep.htm"), "\\");
    EXPECT_EQ(SysFile::getDir("/rep.htm"), "\\");
}

TEST(AppendToDir, PutsOneSeparatorBetween) {
    EXPECT_EQ(SysFile::appendToDir("C:\\out", "a.gif"), "C:\\out\\a.gif");
    EXPECT_EQ(SysFile::appendToDir("C:", "a.gif"), "C:\\a.gif");
    EXPECT_EQ(SysFile::appendToDir("C:\\out\\", "a.gif"), "C:\\out\\a.gif");
    EXPECT_EQ(SysFile::appendToDir("out/", "a.gif"), "out\\a.gif");
    EXPECT_EQ(SysFile::appendToDir("\\", "a.gif"), "\\a.gif");
}

TEST(AppendToDir, GivesTheNameAloneForAnEmptyDirectory) {
    EXPECT_EQ(SysFile::appendToDir("", "a.gif"), "a.gif");
    EXPECT_EQ(SysFile::appendToDir("", ""), "");
}

TEST(AppendToDir, IsBuiltWithBackslashes) {
    EXPECT_EQ(SysFile::appendToDir("/out/x", "pix/a.gif"), "\\out\\x\\pix\\a.gif");
}

TEST(SpecificPath, IsTheNameBelowTheDirectory) {
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "pix"), "C:\\out\\pix");
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out\\", "pix\\small"), "C:\\out\\pix\\small");
    EXPECT_EQ(SysDirectory::getSpecificPath("", "pix"), "pix");
}

TEST(SpecificPath, OfAnAbsoluteNameIsThatName) {
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "D:\\pix"), "D:\\pix");
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "D:pix"), "D:pix");
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "\\pix"), "\\pix");
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "/pix"), "\\pix");
    EXPECT_EQ(SysDirectory::getSpecificPath("C:\\out", "\\\\server\\pix"), "\\\\server\\pix");
}

TEST(ParentDirectory, IsTheDirectoryAbove) {
    EXPECT_EQ(SysDirectory::getParentDirectory("C:\\out\\pix"), "C:\\out");
    EXPECT_EQ(SysDirectory::getParentDirectory("C:\\out"), "C:");
    EXPECT_EQ(SysDirectory::getParentDirectory("a\\b\\c"), "a\\b");
    EXPECT_EQ(SysDirectory::getParentDirectory("a/b"), "a");
    EXPECT_EQ(SysDirectory::getParentDirectory("\\a"), "\\");
}

TEST(ParentDirectory, DoesNotCountATrailingSeparator) {
    EXPECT_EQ(SysDirectory::getParentDirectory("a\\b\\"), "a");
    EXPECT_EQ(SysDirectory::getParentDirectory("a\\\\b"), "a");
}

TEST(ParentDirectory, IsEmptyAtTheTop) {
    EXPECT_EQ(SysDirectory::getParentDirectory("a"), "");
    EXPECT_EQ(SysDirectory::getParentDirectory("a\\"), "");
    EXPECT_EQ(SysDirectory::getParentDirectory("C:"), "");
    EXPECT_EQ(SysDirectory::getParentDirectory("C:\\"), "");
    EXPECT_EQ(SysDirectory::getParentDirectory("\\"), "");
    EXPECT_EQ(SysDirectory::getParentDirectory(""), "");
}

TEST(ParentDirectory, AlwaysComesToAnEnd) {
    for (OrxString dir : {"C:\\a\\b\\c", "a\\b\\c", "\\a\\b\\c", "\\\\s\\share\\x", "a\\\\\\b\\"}) {
        int steps = 0;
        while (!dir.isEmpty() && steps < 10) {
            const OrxString parent = SysDirectory::getParentDirectory(dir);
            EXPECT_LT(parent.length(), dir.length());
            dir = parent;
            ++steps;
        }
        EXPECT_TRUE(dir.isEmpty());
    }
}

TEST(RelativePath, OfEqualPathsIsEmpty) {
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "C:\\out"), "");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out\\", "C:\\out"), "");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "C:/out"), "");
    EXPECT_EQ(SysDirectory::getRelativePath("", ""), "");
}

TEST(RelativePath, GoesDown) {
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "C:\\out\\pix\\a.gif"), "pix\\a.gif");
    EXPECT_EQ(SysDirectory::getRelativePath("C:", "C:\\out"), "out");
    EXPECT_EQ(SysDirectory::getRelativePath("\\", "\\out"), "out");
}

TEST(RelativePath, GoesUpOncePerComponentOfTheBase) {
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out\\sub", "C:\\out"), "..");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out\\a\\b", "C:\\out\\pix"), "..\\..\\pix");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "C:\\other\\x"), "..\\other\\x");
}

TEST(RelativePath, IsTheTargetItselfWithoutACommonBeginning) {
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "D:\\pix\\a.gif"), "D:\\pix\\a.gif");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", "pix"), "pix");
    EXPECT_EQ(SysDirectory::getRelativePath("out", "C:\\pix"), "C:\\pix");
    EXPECT_EQ(SysDirectory::getRelativePath("out", "\\out"), "\\out");
    EXPECT_EQ(SysDirectory::getRelativePath("", "C:\\pix"), "C:\\pix");
    EXPECT_EQ(SysDirectory::getRelativePath("", "/pix/a"), "/pix/a");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out", ""), "");
    EXPECT_EQ(SysDirectory::getRelativePath("\\out", "pix/a"), "pix/a");
}

TEST(RelativePath, TwoRelativeNamesShareARootWithoutAName) {
    EXPECT_EQ(SysDirectory::getRelativePath("s1", ""), "..");
    EXPECT_EQ(SysDirectory::getRelativePath("s1\\deep", ""), "..\\..");
    EXPECT_EQ(SysDirectory::getRelativePath("s1", "rep_dtl.htm"), "..\\rep_dtl.htm");
    EXPECT_EQ(SysDirectory::getRelativePath("s2", "s1"), "..\\s1");
    EXPECT_EQ(SysDirectory::getRelativePath("a", "b/c"), "..\\b\\c");
    EXPECT_EQ(SysDirectory::getRelativePath("", "b/c"), "b\\c");
    EXPECT_EQ(SysDirectory::getRelativePath(".", "a"), "..\\a");
}

TEST(RelativePath, TwoAbsoluteNamesWithoutADriveAlwaysShareTheRoot) {
    EXPECT_EQ(SysDirectory::getRelativePath("\\a", "\\b"), "..\\b");
    EXPECT_EQ(SysDirectory::getRelativePath("/home/me/out", "/usr/share/x"),
              "..\\..\\..\\usr\\share\\x");
    EXPECT_EQ(SysDirectory::getRelativePath("\\\\server\\one", "\\\\server\\two"), "..\\two");
}

TEST(RelativePath, TakesDotsAsNamesAndDropsEmptyComponents) {
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out\\.\\a", "C:\\out\\b"), "..\\..\\b");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\out\\..", "C:\\out"), "..");
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\\\out", "C:\\out\\\\a"), "a");
}

TEST(RelativePath, IgnoresTheCaseOfADriveLetter) {
    EXPECT_EQ(SysDirectory::getRelativePath("c:\\out", "C:\\out\\a"), "a");
    EXPECT_EQ(path_text::relativePath("c:\\out", "C:\\out\\a", false), "a");
}

TEST(RelativePath, ComparesNamesAsTheSystemDoes) {
    EXPECT_EQ(path_text::relativePath("C:\\Out", "C:\\out\\a", false), "..\\out\\a");
    EXPECT_EQ(path_text::relativePath("C:\\Out", "C:\\out\\a", true), "a");
    EXPECT_EQ(path_text::relativePath("OUT", "out\\a", false), "..\\out\\a");
    EXPECT_EQ(path_text::relativePath("OUT", "out\\a", true), "a");
    const OrxString expected = system_facts::namesIgnoreCase() ? "a" : "..\\out\\a";
    EXPECT_EQ(SysDirectory::getRelativePath("C:\\Out", "C:\\out\\a"), expected);
}

TEST(RelativeFileName, IsTheRelativeDirectoryJoinedWithTheFilePart) {
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out", "C:\\out\\rep.htm"), "rep.htm");
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out", "C:\\out\\pix\\a.gif"), "pix\\a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out\\sub", "C:\\rep.htm"), "..\\..\\rep.htm");
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out", "D:\\x\\a.gif"), "D:\\x\\a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out", "a.gif"), "a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("\\out", "\\a.gif"), "..\\a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("s1", "a.gif"), "..\\a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("s2", "s1\\a.gif"), "..\\s1\\a.gif");
    EXPECT_EQ(SysFile::getRelativeFileName("", "s1\\a.gif"), "s1\\a.gif");
}

TEST(RelativeFileName, DistinguishesAFileFromADirectoryOfTheSameName) {
    EXPECT_EQ(SysFile::getRelativeFileName("C:\\out", "C:\\out"), "..\\out");
}

TEST(HyperLink, BeginsWithASchemeOfTwoOrMoreCharacters) {
    EXPECT_TRUE(SysFile::isHyperLink("http://host/a"));
    EXPECT_TRUE(SysFile::isHyperLink("HTTPS://host"));
    EXPECT_TRUE(SysFile::isHyperLink("file:///C|/a"));
    EXPECT_TRUE(SysFile::isHyperLink("svn+ssh://x"));
    EXPECT_TRUE(SysFile::isHyperLink("z39.50s://x"));
    EXPECT_TRUE(SysFile::isHyperLink("a-b://"));
    EXPECT_TRUE(SysFile::isHyperLink("mailto:me@x"));
    EXPECT_TRUE(SysFile::isHyperLink("news:comp.x"));
}

TEST(HyperLink, IsNotAPathOrOrdinaryText) {
    EXPECT_FALSE(SysFile::isHyperLink("C:\\x"));
    EXPECT_FALSE(SysFile::isHyperLink("C://x"));
    EXPECT_FALSE(SysFile::isHyperLink("pkg::Class"));
    EXPECT_FALSE(SysFile::isHyperLink("Use Case: A"));
    EXPECT_FALSE(SysFile::isHyperLink("see http://host"));
    EXPECT_FALSE(SysFile::isHyperLink("9p://x"));
    EXPECT_FALSE(SysFile::isHyperLink("http:/x"));
    EXPECT_FALSE(SysFile::isHyperLink("http"));
    EXPECT_FALSE(SysFile::isHyperLink("://x"));
    EXPECT_FALSE(SysFile::isHyperLink(""));
}

/// Joins the components of a path, with one separator between them.
std::string joined(const std::vector<std::string>& components) {
    std::string path;
    for (const std::string& component : components) {
        path += path.empty() || path == "\\" ? component : "\\" + component;
    }
    return path;
}

std::vector<std::string> somePath(std::mt19937& random) {
    static const std::vector<std::string> tops = {"C:", "D:", "\\", "a", "b"};
    std::vector<std::string> path = {tops.at(random() % tops.size())};
    for (std::size_t more = random() % 5; more > 0; --more) {
        path.emplace_back(1, static_cast<char>('a' + random() % 2));
    }
    return path;
}

/// A straightforward implementation: remove the common components, go up from the rest of the base,
/// then down to the target.
std::string naiveRelativePath(std::vector<std::string> base, std::vector<std::string> target) {
    const auto isRelative = [](const std::vector<std::string>& path) {
        return path.front() != "\\" && !path.front().ends_with(':');
    };
    if (base.front() != target.front() && !(isRelative(base) && isRelative(target))) {
        return joined(target);
    }
    while (!base.empty() && !target.empty() && base.front() == target.front()) {
        base.erase(base.begin());
        target.erase(target.begin());
    }
    std::vector<std::string> way(base.size(), "..");
    way.insert(way.end(), target.begin(), target.end());
    return joined(way);
}

TEST(RelativePathProperty, AgreesWithAStraightforwardImplementation) {
    std::mt19937 random(20260101);
    for (int i = 0; i < 20000; ++i) {
        const std::vector<std::string> base = somePath(random);
        const std::vector<std::string> target = somePath(random);
        ASSERT_EQ(path_text::relativePath(joined(base), joined(target), false),
                  naiveRelativePath(base, target))
            << joined(base) << " to " << joined(target);
    }
}

TEST(FileNameProperty, DirectoryAndFilePartJoinToTheNameAgain) {
    std::mt19937 random(4711);
    for (int i = 0; i < 20000; ++i) {
        const std::vector<std::string> path = somePath(random);
        if (path.size() < 2) {
            continue;
        }
        const OrxString name = joined(path) + ".htm";
        ASSERT_EQ(SysFile::appendToDir(SysFile::getDir(name), SysFile::stripDir(name)), name);
        ASSERT_EQ(SysFile::getDir(name), SysDirectory::getParentDirectory(name));
    }
}

}  // namespace
}  // namespace quillmark
