#include "replay/tool/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "command_line/bad_usage.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

Options parsed(std::vector<std::string> arguments) {
    return parseOptions(arguments);
}

std::string refusal(std::vector<std::string> arguments) {
    try {
        static_cast<void>(parseOptions(arguments));
    } catch (const BadUsage& problem) {
        return problem.what();
    }
    return "accepted";
}

TEST(Options, ListInputsInTheirOrder) {
    EXPECT_THAT(parsed({"a", "-q", "-", "b"}).inputs, ElementsAre("a", "-", "b"));
    EXPECT_THAT(parsed({"--", "-q", "--x"}).inputs, ElementsAre("-q", "--x"));
}

TEST(Options, AcceptAValueAfterOrWithinTheOption) {
    EXPECT_EQ(parsed({"--output", "x", "a"}).output, "x");
    EXPECT_EQ(parsed({"--output=x=y", "a"}).output, "x=y");
    EXPECT_EQ(parsed({"-o", "x", "a"}).output, "x");
    EXPECT_EQ(parsed({"-ox", "a"}).output, "x");
    EXPECT_EQ(parsed({"-qo", "x", "a"}).output, "x");
    EXPECT_TRUE(parsed({"-qo", "x", "a"}).quiet);
    EXPECT_EQ(refusal({"--log=", "a"}), "option --log needs a value: FILE");
    EXPECT_EQ(refusal({"--install-dir", "", "a"}), "option --install-dir needs a value: DIR");
}

TEST(Options, NameTheFilesOfARun) {
    const Options options =
        parsed({"--settings", "s.ini", "--ini", "v.ini", "--model", "m.json", "--image-maps",
                "i.json", "--log", "l.txt", "--exceptions", "e.txt", "a"});
    EXPECT_EQ(options.settingsFile, "s.ini");
    EXPECT_EQ(options.iniFile, "v.ini");
    EXPECT_EQ(options.modelFile, "m.json");
    EXPECT_EQ(options.imageMapFile, "i.json");
    EXPECT_EQ(options.logFile, "l.txt");
    EXPECT_EQ(options.exceptionFile, "e.txt");
    EXPECT_FALSE(options.output.has_value());
    EXPECT_FALSE(options.quiet);
}

TEST(Options, SplitSettingsIntoTheirParts) {
    const Options options = parsed(
        {"--set", "Html.BodyTags=A=\"b.c\"", "--install-dir", "inst", "--set=Html.IconFile=", "a"});
    ASSERT_EQ(options.settings.size(), 3U);
    EXPECT_EQ(options.settings[0].group, "Html");
    EXPECT_EQ(options.settings[0].name, "BodyTags");
    EXPECT_EQ(options.settings[0].value, "A=\"b.c\"");
    EXPECT_FALSE(options.settings[0].isFileName);
    EXPECT_EQ(options.settings[1].group, "Settings");
    EXPECT_EQ(options.settings[1].name, "InstallDir");
    EXPECT_EQ(options.settings[1].value, "inst");
    EXPECT_TRUE(options.settings[1].isFileName);
    EXPECT_EQ(options.settings[2].value, "");
}

TEST(Options, RefuseASettingWithoutNameOrValue) {
    for (const char* text :
         {"Html", "Html.Navig", "Navig=1", ".Navig=1", "Html.=1", "=1", "", "Html=a.b"}) {
        EXPECT_EQ(refusal({"--set", text, "a"}),
                  std::string("--set takes GROUP.NAME=VALUE, not \"") + text + "\"");
    }
}

TEST(Options, AcceptDrives) {
    const Options options = parsed({"--drive", "C=/tmp/c", "--drive=d=x=y", "a"});
    ASSERT_EQ(options.drives.size(), 2U);
    EXPECT_EQ(options.drives[0].letter, 'C');
    EXPECT_EQ(options.drives[0].directory, "/tmp/c");
    EXPECT_EQ(options.drives[1].letter, 'd');
    EXPECT_EQ(options.drives[1].directory, "x=y");
    for (const char* text : {"C", "C=", "CD=x", "1=x", "=x", ""}) {
        EXPECT_EQ(refusal({"--drive", text, "a"}),
                  std::string("--drive takes X=DIR, not \"") + text + "\"");
    }
}

TEST(Options, AcceptATraceLevelOfSixteenBits) {
    EXPECT_EQ(parsed({"--trace", "10", "a"}).traceLevel, 10);
    EXPECT_EQ(parsed({"--trace", "-1", "a"}).traceLevel, -1);
    EXPECT_FALSE(parsed({"a"}).traceLevel.has_value());
    for (const char* text : {"32768", "x", "1x", ""}) {
        EXPECT_EQ(
            refusal({"--trace", text, "a"}),
            std::string("--trace takes an integer from -32768 to 32767, not \"") + text + "\"");
    }
}

TEST(Options, AreRefusedWhenUnknown) {
    EXPECT_EQ(refusal({"--colour", "a"}), "unknown option --colour");
    EXPECT_EQ(refusal({"--colour=red", "a"}), "unknown option --colour");
    EXPECT_EQ(refusal({"-x", "a"}), "unknown option -x");
    EXPECT_EQ(refusal({"--out", "x", "a"}), "unknown option --out");
}

TEST(Options, AreRefusedWithoutTheirValueOrWithOneTooMany) {
    EXPECT_EQ(refusal({"a", "--output"}), "option --output needs a value: FILE");
    EXPECT_EQ(refusal({"a", "-o"}), "option --output needs a value: FILE");
    EXPECT_EQ(refusal({"--quiet=yes", "a"}), "option --quiet takes no value");
}

TEST(Options, NeedCalls) {
    EXPECT_EQ(refusal({}), "no calls given; try --help");
    EXPECT_EQ(refusal({"-q"}), "no calls given; try --help");
    EXPECT_TRUE(parsed({"--help"}).help);
    EXPECT_TRUE(parsed({"--version"}).version);
}

TEST(Options, AreAllListedInTheHelp) {
    std::ostringstream out;
    writeHelp(out);
    for (const char* name :
         {"-o, --output FILE", "--settings FILE", "--set GROUP.NAME=VALUE", "--install-dir DIR",
          "--ini FILE", "--model FILE", "--image-maps FILE", "--drive X=DIR", "--trace LEVEL",
          "--log FILE", "--exceptions FILE", "-q, --quiet", "--help", "--version"}) {
        EXPECT_THAT(out.str(), HasSubstr(name));
    }
}

}  // namespace
}  // namespace quillmark::replay
