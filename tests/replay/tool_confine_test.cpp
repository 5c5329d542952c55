// A confined run: calls from strangers reach no other files.
#ifndef _WIN32

#include <gmock/gmock.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "replay/tool_fixture.h"
#include "support/environment_variable.h"

namespace quillmark::replay {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

namespace fs = std::filesystem;

class ConfinedTool : public ReplayTool {
protected:
    ConfinedTool() {
        for (const char* const directory : {"out", "allowed", "secret"}) {
            makeDirectory(directory);
        }
        dir_.put("allowed\\note.txt", "a note");
        dir_.put("secret\\key.txt", "a secret");
    }

    /// Plays calls into out/rep.htm. `calls` are the lines after `create`.
    ToolResult play(const std::string& calls, std::vector<std::string> arguments = {}) {
        const std::vector<std::string> usual{
            "--confine", "-o",    "out/rep.htm",      "--allow-read", "allowed",
            "-",         "--set", "Html.StyleSheet=", "--drive",      "C=" + native("")};
        arguments.insert(arguments.begin(), usual.begin(), usual.end());
        return run(arguments, "[\"create\",\"rep.htm\"]\n" + calls + "[\"close\"]\n");
    }
    /// Whether a text is in any file below the output directory.
    [[nodiscard]] bool isPublished(const std::string& text) const {
        for (const auto& [name, bytes] : filesIn("out")) {
            if (bytes.find(text) != std::string::npos) {
                return true;
            }
        }
        return false;
    }
    [[nodiscard]] std::string insertFile(const std::string& name) const {
        return "[\"insertFile\",\"" + name + "\",3]\n";
    }
    static std::string refusal(const std::string& what) {
        return "dochtml-replay: --confine: refused to " + what + "\n";
    }
};

TEST_F(ConfinedTool, PlaysWhatStaysInItsDirectories) {
    const ToolResult result =
        play("[\"insertText\",\"Hello\"]\n" + insertFile(native("allowed/note.txt")) +
             "[\"insertXref\",\"x\",\"" + native("allowed/note.txt") + "\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.errors, Not(HasSubstr("refused")));
    EXPECT_THAT(content("out/rep_dtl.htm"), HasSubstr("Hello"));
    EXPECT_THAT(content("out/rep_dtl.htm"), HasSubstr("a note"));
    EXPECT_EQ(content("out/docs/note.txt"), "a note");
}

TEST_F(ConfinedTool, MakesTheSameDocumentAsAFreeRun) {
    makeDirectory("free");
    const std::string calls =
        "[\"create\",\"rep.htm\"]\n[\"setStyle\",\"Heading 1\"]\n"
        "[\"insertText\",\"Hello\"]\n[\"insertPageBreak\"]\n"
        "[\"pushDirectory\",\"sub\"]\n[\"insertText\",\"x\"]\n[\"close\"]\n";
    EXPECT_EQ(run({"-o", "free/rep.htm", "-"}, calls).status, 0);
    const ToolResult confined = run({"--confine", "-o", "out/rep.htm", "-"}, calls);
    EXPECT_EQ(confined.status, 0) << confined.errors;
    EXPECT_EQ(filesIn("out"), filesIn("free"));
}

TEST_F(ConfinedTool, ReadsNothingElse) {
    for (const std::string& name :
         {native("secret/key.txt"), native("allowed/../secret/key.txt"),
          std::string("secret\\\\key.txt"), std::string("out\\\\..\\\\secret\\\\key.txt"),
          std::string("C:\\\\secret\\\\key.txt")}) {
        const ToolResult result = play(insertFile(name) + "[\"insertXref\",\"x\",\"" + name +
                                       "\"]\n[\"insertImage\",\"" + name + "\",\"\"]\n");
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_THAT(result.errors, HasSubstr("--confine: refused to read ")) << name;
        EXPECT_THAT(result.errors, HasSubstr("secret/key.txt\n")) << name;
        EXPECT_FALSE(isPublished("a secret")) << name;
    }
}

TEST_F(ConfinedTool, ReadsNoStyleSheetThatTheCallsName) {
    const ToolResult result =
        run({"--confine", "-o", "out/rep.htm", "-"},
            "[\"overrideRegistry\",\"Html\",\"StyleSheet\",\"" + native("secret/key.txt") +
                "\",2]\n" + "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(refusal("read " + native("secret/key.txt"))));
    EXPECT_FALSE(isPublished("a secret"));
}

TEST_F(ConfinedTool, DoesNotMissAFileThatDoesNotExist) {
    const ToolResult result = play("[\"insertXref\",\"x\",\"/none/such.txt\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.errors, Not(HasSubstr("refused")));
}

TEST_F(ConfinedTool, WritesNothingElse) {
    for (const std::string& name : {native("secret/evil.htm"), std::string("..\\\\evil.htm"),
                                    std::string("C:\\\\secret\\\\evil.htm")}) {
        const ToolResult result =
            run({"--confine", "-o", "out/rep.htm", "-", "--set", "Html.StyleSheet=", "--drive",
                 "C=" + native("")},
                "[\"create\",\"rep.htm\"]\n[\"close\"]\n[\"new\"]\n[\"create\",\"" + name +
                    "\"]\n[\"insertText\",\"x\"]\n[\"close\"]\n");
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_THAT(result.errors, HasSubstr("--confine: refused to write ")) << name;
        EXPECT_TRUE(exists("out/rep_dtl.htm"));
    }
    EXPECT_EQ(filesIn("secret").size(), 1U);
    EXPECT_FALSE(exists("evil.htm"));
    EXPECT_FALSE(exists("evil_dtl.htm"));
}

TEST_F(ConfinedTool, LeavesItsDirectoryByNoSettingAndNoSubdirectory) {
    const ToolResult result = play(
        "[\"pushDirectory\",\"..\\\\..\\\\secret\"]\n[\"insertText\",\"x\"]\n"
        "[\"insertPageBreak\"]\n[\"popDirectory\"]\n",
        {"--set", "Html.HtmlPixDir=../secret/pix", "--set",
         "Html.ExternalDocDir=" + native("secret/docs")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("--confine: refused to write "));
    EXPECT_EQ(filesIn("secret").size(), 1U);
    EXPECT_FALSE(exists("secret/pix"));
    EXPECT_FALSE(exists("secret/docs"));
}

TEST_F(ConfinedTool, CountsARefusedCopyOnce) {
    dir_.put("out\\own.txt", "not to be read");
    const ToolResult result = play("[\"insertXref\",\"x\",\"" + native("out/own.txt") + "\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(refusal("read " + native("out/own.txt"))));
    EXPECT_THAT(result.errors,
                HasSubstr("Could not copy file out/own.txt to directory out/docs: Refused\n"));
    EXPECT_THAT(result.errors, HasSubstr(", 1 error\n"));
}

TEST_F(ConfinedTool, WritesNoTraceThatTheCallsName) {
    const ToolResult result =
        play("[\"overrideRegistry\",\"Log\",\"LogName\",\"" + native("secret/trace.txt") +
             "\",2]\n[\"trace\",10]\n" + "[\"insertText\",\"x\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(refusal("write " + native("secret/trace.txt"))));
    EXPECT_FALSE(exists("secret/trace.txt"));
}

TEST_F(ConfinedTool, WritesTheTraceThatTheUserNames) {
    const ToolResult result = play("", {"--trace", "10", "--log", "logs/trace.txt"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(content("logs/trace.txt"), HasSubstr("dochtml->close();"));
}

TEST_F(ConfinedTool, FollowsNoLinkOutOfItsDirectories) {
    fs::create_symlink(native("secret"), native("allowed/link"));
    fs::create_symlink(native("secret/key.txt"), native("allowed/key.txt"));
    fs::create_symlink(native("secret"), native("out/pix"));
    const ToolResult result =
        play(insertFile(native("allowed/link/key.txt")) + insertFile(native("allowed/key.txt")));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(refusal("read " + native("allowed/link/key.txt"))));
    EXPECT_THAT(result.errors, HasSubstr(refusal("read " + native("allowed/key.txt"))));
    EXPECT_THAT(result.errors, HasSubstr("refused to write "));
    EXPECT_FALSE(isPublished("a secret"));
    EXPECT_EQ(filesIn("secret").size(), 1U);
}

TEST_F(ConfinedTool, WritesNoPageThroughALink) {
    fs::create_symlink(native("secret/key.txt"), native("out/rep_dtl.htm"));
    const ToolResult result = play("[\"insertText\",\"x\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(content("secret/key.txt"), "a secret");
}

TEST_F(ConfinedTool, IsNotFooledByADirectoryThatIsExchangedForALink) {
    makeDirectory("allowed/real");
    dir_.put("allowed\\real\\key.txt", "a note");
    std::atomic<bool> done = false;
    // Exchanges a directory for a link to the secret one, as fast as it can.
    std::thread attacker([&] {
        std::error_code ignored;
        while (!done) {
            fs::rename(native("allowed/real"), native("allowed/aside"), ignored);
            fs::create_symlink(native("secret"), native("allowed/real"), ignored);
            fs::remove(native("allowed/real"), ignored);
            fs::rename(native("allowed/aside"), native("allowed/real"), ignored);
        }
    });
    std::string calls;
    for (int i = 0; i < 3000; ++i) {
        calls += insertFile(native("allowed/real/key.txt"));
    }
    // On a busy machine the link may stay for a whole run.
    bool wasRead = false;
    for (int run = 0; run < 3 || (!wasRead && run < 50); ++run) {
        static_cast<void>(play(calls));
        wasRead = wasRead || isPublished("a note");
        EXPECT_FALSE(isPublished("a secret"));
    }
    EXPECT_TRUE(wasRead);
    done = true;
    attacker.join();
}

TEST_F(ConfinedTool, DoesNotWriteIntoADirectoryThatIsExchangedForALink) {
    makeDirectory("out/sub");
    std::atomic<bool> done = false;
    std::thread attacker([&] {
        std::error_code ignored;
        while (!done) {
            fs::rename(native("out/sub"), native("out/aside"), ignored);
            fs::create_symlink(native("secret"), native("out/sub"), ignored);
            fs::remove(native("out/sub"), ignored);
            fs::remove_all(native("out/sub"), ignored);
            fs::rename(native("out/aside"), native("out/sub"), ignored);
        }
    });
    std::string calls = "[\"pushDirectory\",\"sub\"]\n";
    for (int i = 0; i < 2000; ++i) {
        calls += "[\"insertText\",\"x\"]\n[\"insertPageBreak\"]\n";
    }
    static_cast<void>(play(calls));
    done = true;
    attacker.join();
    EXPECT_EQ(filesIn("secret").size(), 1U);
}

TEST_F(ConfinedTool, StartsNoProgram) {
    makeDirectory("bin");
    dir_.put("bin\\xdg-open", "#!/bin/sh\ntouch '" + native("opened") + "'\n");
    fs::permissions(native("bin/xdg-open"), fs::perms::owner_all);
    const EnvironmentVariable path("PATH", native("bin") + ":/usr/bin:/bin");
    const ToolResult result = play("[\"showLast\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(refusal("start xdg-open")));
    EXPECT_FALSE(exists("opened"));
}

TEST_F(ConfinedTool, WritesBelowItsStartDirectoryWithoutAnOutputFile) {
    const ToolResult result = run({"--confine", "-", "--set", "Html.StyleSheet="},
                                  "[\"create\",\"here/rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(exists("here/rep_dtl.htm"));
}

TEST_F(ConfinedTool, NeedsDirectoriesThatExist) {
    const ToolResult missing = play("", {"--allow-read", "nowhere"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.errors, "dochtml-replay: --allow-read: there is no directory nowhere\n");
    EXPECT_EQ(run({"--allow-read", "allowed", "-"}, "").status, 2);
}

}  // namespace
}  // namespace quillmark::replay

#endif
