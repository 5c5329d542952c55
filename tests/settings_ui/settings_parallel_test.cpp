#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "settings_ui/settings_tool_fixture.h"

namespace quillmark {

namespace {

using ParallelSettings = SettingsToolTest;

constexpr std::array assignments{"HtmlPixDir=a",
                                 "ExternalDocDir=b",
                                 "UseRelative=false",
                                 "ShowIcons=false",
                                 "SupportOld=true",
                                 "BodyTags=c",
                                 "SuppressImageMaps=yes",
                                 "Navig=3",
                                 "TOCLevel=9",
                                 "DontCopy=.doc",
                                 "StyleSheet=",
                                 "PassThrough=on",
                                 "LocateInBrowser=no",
                                 "ScriptNavigator=on",
                                 "DiagramType=1",
                                 "InstallDir=d",
                                 "TestLevel=1",
                                 "UserFilesDir=e",
                                 "HelpFile=f",
                                 "LogName=g"};

std::string inQuotes(const std::string& text) {
    return '"' + text + '"';
}

/// Now and then Wine starts no process when many threads ask for one, which is not an answer of the
/// tool.
int statusOf(const std::string& command) {
    constexpr int notStarted = -1;
    constexpr int attempts = 5;
    int status = notStarted;
    for (int i = 0; i < attempts && status == notStarted; ++i) {
        status = std::system(command.c_str());
    }
    return status;
}

TEST_F(ParallelSettings, AreAllKept) {
    std::array<int, assignments.size()> statuses{};
    {
        std::vector<std::jthread> users;
        for (std::size_t i = 0; i < assignments.size(); ++i) {
            const std::string program =
                std::filesystem::path(DOCHTML_SETTINGS_PROGRAM).make_preferred().string();
            std::string command = inQuotes(program) + " --settings " + inQuotes(store()) + " set " +
                                  inQuotes(assignments[i]);
            // Where names have backslashes the command interpreter takes a pair of quotes away.
            command =
                std::filesystem::path::preferred_separator == '\\' ? inQuotes(command) : command;
            users.emplace_back([command, &status = statuses[i]] { status = statusOf(command); });
        }
    }
    EXPECT_EQ(statuses, (std::array<int, assignments.size()>{}));
    const std::string text = kept();
    for (const char* const name : {"HtmlPixDir=a",
                                   "ExternalDocDir=b",
                                   "UseRelative=false",
                                   "ShowIcons=false",
                                   "SupportOld=true",
                                   "BodyTags=c",
                                   "SuppressImageMaps=true",
                                   "Navig=3",
                                   "TOCLevel=9",
                                   "DontCopy=.doc",
                                   "StyleSheet=",
                                   "PassThrough=true",
                                   "LocateInBrowser=false",
                                   "ScriptNavigator=true",
                                   "DiagramType=1",
                                   "InstallDir=d",
                                   "TestLevel=1",
                                   "UserFilesDir=e",
                                   "HelpFile=f",
                                   "LogName=g"}) {
        EXPECT_NE(text.find(std::string("\n") + name + "\n"), std::string::npos) << name;
    }
}

}  // namespace

}  // namespace quillmark
