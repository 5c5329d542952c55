#include "driver/pages/output_names.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmark {
namespace {

OutputNames namesOf(const OrxString& fileName, bool detailNames = false) {
    OutputNames names;
    names.setDocument(fileName);
    names.setDetailNames(detailNames);
    return names;
}

TEST(OutputNames, SplitTheDocumentsName) {
    const OutputNames names = namesOf("C:\\out\\rep.html");
    EXPECT_EQ(names.baseName(), "C:\\out\\rep");
    EXPECT_EQ(names.extension(), ".html");
    EXPECT_EQ(names.outputDir(), "C:\\out");
    EXPECT_EQ(names.documentFileName(), "C:\\out\\rep.html");
}

TEST(OutputNames, HaveAnExtensionInAnyCase) {
    const OutputNames names = namesOf("C:\\out.d\\rep");
    EXPECT_EQ(names.baseName(), "C:\\out.d\\rep");
    EXPECT_EQ(names.extension(), ".htm");
    EXPECT_EQ(names.documentFileName(), "C:\\out.d\\rep.htm");
}

TEST(OutputNames, CutTheExtensionAtTheLastDot) {
    EXPECT_EQ(namesOf("C:\\out\\rep.v2.htm").baseName(), "C:\\out\\rep.v2");
    EXPECT_EQ(namesOf("C:\\out\\rep.").extension(), ".");
    EXPECT_EQ(namesOf("C:\\out\\.htm").baseName(), "C:\\out\\");
}

TEST(OutputNames, TakeEitherSeparator) {
    const OutputNames names = namesOf("C:/out/sub\\rep.htm");
    EXPECT_EQ(names.baseName(), "C:\\out\\sub\\rep");
    EXPECT_EQ(names.outputDir(), "C:\\out\\sub");
}

TEST(OutputNames, HaveTheOutputDirectoryWithoutItsSeparator) {
    EXPECT_EQ(namesOf("C:\\rep.htm").outputDir(), "C:");
    EXPECT_EQ(namesOf("rep.htm").outputDir(), "");
    EXPECT_EQ(namesOf("out\\rep.htm").outputDir(), "out");
}

TEST(OutputNames, NumberEveryPageButTheFirst) {
    const OutputNames names = namesOf("C:\\out\\rep.htm");
    EXPECT_EQ(names.pageFileName(1, ""), "C:\\out\\rep.htm");
    EXPECT_EQ(names.pageFileName(2, ""), "C:\\out\\rep2.htm");
    EXPECT_EQ(names.pageFileName(4294967295U, ""), "C:\\out\\rep4294967295.htm");
    EXPECT_EQ(names.pageFileName(0, ""), "C:\\out\\rep0.htm");
}

TEST(OutputNames, DistinguishDetailPagesFromTheStartPage) {
    const OutputNames names = namesOf("C:\\out\\rep.htm", true);
    EXPECT_EQ(names.pageFileName(1, ""), "C:\\out\\rep_dtl.htm");
    EXPECT_EQ(names.pageFileName(2, ""), "C:\\out\\rep_dtl2.htm");
    EXPECT_EQ(names.pageFileName(3, "a\\b"), "C:\\out\\a\\b\\rep_dtl3.htm");
    EXPECT_EQ(names.documentFileName(), "C:\\out\\rep.htm");
}

TEST(OutputNames, PutASubdirectoryInFrontOfTheFilePart) {
    EXPECT_EQ(namesOf("C:\\out\\rep.htm").pageFileName(1, "sub"), "C:\\out\\sub\\rep.htm");
    EXPECT_EQ(namesOf("C:\\rep.htm").pageFileName(2, "sub"), "C:\\sub\\rep2.htm");
    EXPECT_EQ(namesOf("rep.htm").pageFileName(2, "sub"), "sub\\rep2.htm");
}

TEST(OutputNames, ShortenASubdirectoryToWhatAPathHolds) {
    const OutputNames names = namesOf("C:\\" + std::string(197, 'd') + "\\rep.htm");  // 10 left
    EXPECT_EQ(names.shortenedDirectory("123\\567890"), "123\\567890");
    EXPECT_EQ(names.shortenedDirectory("123\\567890x"), "123");
    EXPECT_EQ(names.shortenedDirectory("1\\2\\3\\4\\5\\6"), "1\\2\\3\\4\\5");
    EXPECT_EQ(names.shortenedDirectory("12345678901"), "12345678901");
    EXPECT_EQ(names.shortenedDirectory("12345678901\\a"), "12345678901");
    EXPECT_EQ(names.shortenedDirectory(""), "");
}

TEST(OutputNames, LeaveNoRoomAfterALongDirectory) {
    const OutputNames names = namesOf("C:\\" + std::string(300, 'd') + "\\rep.htm");
    EXPECT_EQ(names.shortenedDirectory("a\\b\\c"), "a");
    EXPECT_EQ(names.shortenedDirectory(""), "");
}

TEST(OutputNames, AreTakenAfreshForEveryDocument) {
    OutputNames names = namesOf("C:\\out\\rep.html");
    names.setDocument("D:\\x\\other");
    EXPECT_EQ(names.pageFileName(1, ""), "D:\\x\\other.htm");
}

TEST(OutputNames, ShortenADirectoryToItsLastParentThatFits) {
    const OutputNames names = namesOf("C:\\out\\rep.htm");
    const std::string fits(200, 'd');
    EXPECT_EQ(names.shortenedDirectory("a/b"), "a/b");
    EXPECT_EQ(names.shortenedDirectory(fits + "/sub\\deeper"), fits + "\\sub");
    EXPECT_EQ(names.shortenedDirectory(std::string(300, 'd')), std::string(300, 'd'));
}

// A step that copied the path would take hours here.
TEST(OutputNames, ShortenADirectoryOfMillionsOfComponents) {
    const OutputNames names = namesOf("C:\\out\\rep.htm");
    std::string deep;
    for (int i = 0; i < 4'000'000; ++i) {
        deep += "d\\";
    }
    const OrxString shortened = names.shortenedDirectory(deep);
    EXPECT_EQ(shortened.length(), 203U);
    EXPECT_EQ(shortened, deep.substr(0, 203));
}

}  // namespace
}  // namespace quillmark
