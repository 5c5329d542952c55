#include <iostream>

#include "command_line/program.h"
#include "platform/console.h"
#include "settings_ui/tool/answer_source.h"
#include "settings_ui/tool/settings_tool.h"

namespace {

int runSettings(int argc, char** argv) {
    using quillmark::Console;
    return static_cast<int>(quillmark::runSettingsTool(
        Console::arguments(argc, argv), {std::cin, std::cout, std::cerr, Console::executablePath(),
                                         quillmark::makeTerminalAnswers}));
}

}  // namespace

int main(int argc, char** argv) {
    return quillmark::runProgram("dochtml-settings", argc, argv, &runSettings);
}
