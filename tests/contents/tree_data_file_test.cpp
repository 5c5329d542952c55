#include "contents/tree/tree_data_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "foundation/orx_exception.h"
#include "platform/line_end.h"
#include "support/capturing_exception_log.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

/// The text with the platform's line ends.
std::string asFile(std::string_view text) {
    OrxString file(text);
    file.replaceStr("\n", systemLineEnd());
    return file.str();
}

class TreeDataFile : public ::testing::Test {
protected:
    TreeDataFile() { files.makeDirectories("C:\\out"); }

    void add(std::int32_t level, std::string_view text) {
        entries.add({.href = "h", .text = text, .level = level});
    }
    [[nodiscard]] std::string tree(bool showIcons = true) const {
        writeTreeDataFile(path, entries, showIcons);
        return files.content(path).value_or("(none)");
    }

    const OrxString path{"C:\\out\\rep_toc.dat"};
    MemoryFileSystem files;
    InstalledFileSystem inForce{files};
    ContentsEntryList entries;
};

TEST_F(TreeDataFile, WithoutEntriesIsAnEmptyTreeOnTwoLines) {
    EXPECT_EQ(tree(), asFile("(TREE\n)\n"));
}

TEST_F(TreeDataFile, ClosesANodeInFrontOfTheNextLine) {
    add(1, "A");
    add(2, "B");
    add(2, "C");
    add(1, "D");
    EXPECT_EQ(tree(), asFile("(TREE\n"
                             "   (NODE \"A\" \"h\" \n"
                             "      (NODE \"B\" \"h\" )\n"
                             "      (NODE \"C\" \"h\" ))\n"
                             "   (NODE \"D\" \"h\" ))\n"));
}

TEST_F(TreeDataFile, ClosesEveryOpenNodeAtTheEnd) {
    add(1, "A");
    add(2, "B");
    add(3, "C");
    EXPECT_EQ(tree(), asFile("(TREE\n"
                             "   (NODE \"A\" \"h\" \n"
                             "      (NODE \"B\" \"h\" \n"
                             "         (NODE \"C\" \"h\" ))))\n"));
}

TEST_F(TreeDataFile, PutsAFirstNodeOfAnyLevelAtLevelOne) {
    for (const std::int32_t level : {5, 1, 0, -3, std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min()}) {
        entries.clear();
        add(level, "A");
        EXPECT_EQ(tree(), asFile("(TREE\n   (NODE \"A\" \"h\" ))\n")) << level;
    }
}

TEST_F(TreeDataFile, GoesDownOneLevelAtATimeAndUpAnyNumber) {
    add(1, "A");
    add(4, "B");
    add(4, "C");
    add(9, "D");
    add(2, "E");
    add(0, "F");
    EXPECT_EQ(tree(), asFile("(TREE\n"
                             "   (NODE \"A\" \"h\" \n"
                             "      (NODE \"B\" \"h\" \n"
                             "         (NODE \"C\" \"h\" \n"
                             "            (NODE \"D\" \"h\" )))\n"
                             "      (NODE \"E\" \"h\" ))\n"
                             "   (NODE \"F\" \"h\" ))\n"));
}

TEST_F(TreeDataFile, WritesTheIconsThatAnEntryHas) {
    entries.add({.href = "h", .text = "A", .level = 1, .gif = "g.gif", .stereoGif = "s.gif"});
    entries.add({.href = "h", .text = "B", .level = 2, .gif = "g.gif", .stereoGif = "s.gif"});
    entries.add({.href = "h", .text = "C", .level = 2, .gif = "g.gif"});
    entries.add({.href = "h", .text = "D", .level = 2, .stereoGif = "s.gif"});
    EXPECT_EQ(tree(), asFile("(TREE\n"
                             "   (NODE \"A\" \"h\" \"g.gif\" \"s.gif\" \n"
                             "      (NODE \"B\" \"h\" \"g.gif\" \"s.gif\" )\n"
                             "      (NODE \"C\" \"h\" \"g.gif\" )\n"
                             "      (NODE \"D\" \"h\" \"s.gif\" )))\n"));
}

TEST_F(TreeDataFile, WritesNoIconsWhenTheyAreNotShown) {
    entries.add({.href = "h", .text = "A", .level = 1, .gif = "g.gif", .stereoGif = "s.gif"});
    EXPECT_EQ(tree(false), asFile("(TREE\n   (NODE \"A\" \"h\" ))\n"));
}

TEST_F(TreeDataFile, ConvertsTextsAndNothingElse) {
    entries.add({.href = "a\\\"&lt;&nbsp;#t",
                 .text = "\\ \" &lt; &nbsp; &gt; x\r<BR>\n",
                 .level = 1,
                 .gif = "g\"\\.gif",
                 .stereoGif = "&lt;.gif"});
    EXPECT_EQ(tree(), asFile("(TREE\n"
                             "   (NODE \"\\\\ \\\" <   &gt; x\" \"a\\\"&lt;&nbsp;#t\" "
                             "\"g\"\\.gif\" \"&lt;.gif\" ))\n"));
}

TEST_F(TreeDataFile, EndsALineInsideATextAsEveryLineEnds) {
    add(1, "one\ntwo");
    EXPECT_EQ(tree(), asFile("(TREE\n   (NODE \"one\ntwo\" \"h\" ))\n"));
}

TEST_F(TreeDataFile, TakesThePlaceOfAnOlderFile) {
    files.put(path, std::string(10'000, 'x'));
    EXPECT_EQ(tree(), asFile("(TREE\n)\n"));
}

/// The tree as the description of the format has it, one step after the other.
std::string modelTree(const std::vector<std::int32_t>& levels) {
    std::string out = "(TREE";
    long long previous = 0;
    for (const std::int32_t wanted : levels) {
        const long long level = std::clamp<long long>(wanted, 1, previous + 1);
        for (long long i = level; i <= previous; ++i) {
            out += ")";
        }
        out += "\n";
        for (long long i = 0; i < level; ++i) {
            out += "   ";
        }
        out += "(NODE \"t\" \"h\" ";
        previous = level;
    }
    out += levels.empty() ? "\n" : "";
    for (long long i = 0; i < previous; ++i) {
        out += ")";
    }
    return out + ")\n";
}

TEST_F(TreeDataFile, IsTheModelsTreeForAnyLevelsAndItsParenthesesBalance) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const auto deepest = static_cast<std::int32_t>(random() % 12) + 1;
        std::vector<std::int32_t> levels(random() % 60);
        entries.clear();
        for (std::int32_t& level : levels) {
            level = static_cast<std::int32_t>(random() % 15) - 3 + deepest / 2;
            add(level, "t");
        }
        const std::string file = tree();
        EXPECT_EQ(file, asFile(modelTree(levels)));
        EXPECT_EQ(std::count(file.begin(), file.end(), '('),
                  std::count(file.begin(), file.end(), ')'));
    }
}

TEST_F(TreeDataFile, IsWholeWhenItIsLargerThanItsBuffer) {
    std::vector<std::int32_t> levels;
    for (std::int32_t i = 0; i < 20'000; ++i) {
        levels.push_back(i % 50);
        add(levels.back(), "t");
    }
    EXPECT_EQ(tree(), asFile(modelTree(levels)));
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(TreeDataFile, ThrowsWhenTheFileCannotBeMade) {
    const CapturingExceptionLog log;
    const OrxString unreachable("C:\\nowhere\\rep_toc.dat");
    try {
        writeTreeDataFile(unreachable, entries, true);
        FAIL() << "a file in a missing directory was written";
    } catch (const OrxException& problem) {
        EXPECT_EQ(problem.reasonText(), "Error opening file: C:\\nowhere\\rep_toc.dat");
    }
    EXPECT_EQ(log.messages(),
              std::vector<std::string>{
                  "Exception throw: Error opening file: C:\\nowhere\\rep_toc.dat\n"});
}

class TreeDataFileOnAFullDisk : public TreeDataFile {
protected:
    void expectWriteFailure() const {
        try {
            writeTreeDataFile(path, entries, true);
            FAIL() << "a failing disk took the tree";
        } catch (const OrxException& problem) {
            EXPECT_EQ(problem.reasonText(), "Error writing to file: C:\\out\\rep_toc.dat");
        }
        EXPECT_EQ(files.openFiles(), 0);
    }

    FailingFileSystem failing{files};
    InstalledFileSystem failingInForce{failing};
};

TEST_F(TreeDataFileOnAFullDisk, ThrowsWhenAWriteFails) {
    add(1, "A");
    failing.failAt(FailingFileSystem::Operation::write, 1);
    expectWriteFailure();
}

TEST_F(TreeDataFileOnAFullDisk, ThrowsWhenALaterWriteFails) {
    add(1, std::string(1'000'000, 't'));
    add(1, "B");
    failing.failAt(FailingFileSystem::Operation::write, 2);
    expectWriteFailure();
}

TEST_F(TreeDataFileOnAFullDisk, ThrowsWhenTheLastBytesAreLost) {
    failing.failAt(FailingFileSystem::Operation::close, 1);
    expectWriteFailure();
}

}  // namespace
}  // namespace quillmark
