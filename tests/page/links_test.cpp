#include "page/links/links.h"

#include <gtest/gtest.h>

#include "page/links/cached_link.h"
#include "platform/text_encoding.h"

namespace quillmark {
namespace {

TEST(Links, WriteBarsForColonsAndSlashesForBackslashes) {
    EXPECT_EQ(links::fromPath("C:\\out\\a:b.htm"), "C|/out/a|b.htm");
    EXPECT_EQ(links::fromPath("a/b c%<\".gif"), "a/b c%<\".gif");
    EXPECT_EQ(links::fromPath(""), "");
    EXPECT_EQ(links::fromPath("::\\\\"), "||//");
}

TEST(Links, LeadFromADirectoryToATarget) {
    EXPECT_EQ(links::relative("C:\\out\\pix\\a.gif", "C:\\out"), "pix/a.gif");
    EXPECT_EQ(links::relative("C:\\out", "C:\\out\\a\\b"), "../..");
    EXPECT_EQ(links::relative("C:\\out", "C:\\out"), "");
    EXPECT_EQ(links::relative("D:\\pix\\a.gif", "C:\\out"), "D|/pix/a.gif");
    EXPECT_EQ(links::relative("pix\\a.gif", "C:\\out"), "pix/a.gif");
}

TEST(Links, LeadFromADirectoryToAFile) {
    EXPECT_EQ(links::relativeFile("C:\\out\\a.htm", "C:\\out"), "a.htm");
    EXPECT_EQ(links::relativeFile("C:\\out\\a.htm", "C:\\out\\b"), "../a.htm");
    EXPECT_EQ(links::relativeFile("C:\\x\\a.htm", "C:\\out"), "../x/a.htm");
    EXPECT_EQ(links::relativeFile("D:\\x\\a.htm", "C:\\out"), "D|/x/a.htm");
    EXPECT_EQ(links::relativeFile("a.htm", ""), "a.htm");
}

TEST(CachedLinks, AreTheLinksThatWereNotCached) {
    CachedLink cached;
    for (const char* const base : {"C:\\out", "C:\\out\\b", "", "out", "\\"}) {
        for (const char* const file :
             {"C:\\out\\a.htm", "C:\\out\\a.htm", "C:\\out\\c:d.htm", "C:\\x\\a.htm", "C:/x/a.htm",
              "C:a.htm", "C:\\a.htm", "a.htm", "", "a.htm", "\\a.htm", "out\\", "b\\c\\a.htm"}) {
            for (const TextEncoding* const encoding :
                 {&TextEncoding::codePage(), &TextEncoding::utf8()}) {
                const TextEncoding::Scope scope(*encoding);
                const OrxString name = OrxString(file) + "#\xC3\xA9";
                EXPECT_EQ(cached.relativeFile(file, base), links::relativeFile(file, base)) << file;
                EXPECT_EQ(cached.relativeFile(name, base), links::relativeFile(name, base)) << name;
            }
        }
    }
}

TEST(Links, HaveADefaultDirectoryForTheWholeProcess) {
    const OrxString before = links::defaultBase();
    links::setDefaultBase("C:\\out\\deep");
    EXPECT_EQ(links::defaultBase(), "C:\\out\\deep");
    EXPECT_EQ(links::relative("C:\\out\\a.gif", ""), "../a.gif");
    EXPECT_EQ(links::relative("C:\\out\\a.gif", "C:\\out"), "a.gif");
    EXPECT_EQ(links::baseOrDefault("C:\\own"), "C:\\own");
    EXPECT_EQ(links::baseOrDefault(""), "C:\\out\\deep");
    links::setDefaultBase(before);
}

}  // namespace
}  // namespace quillmark
