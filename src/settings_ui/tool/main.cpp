#include <iostream>

#include "platform/console.h"
#include "settings_ui/tool/answer_source.h"
#include "settings_ui/tool/settings_tool.h"

int main(int argc, char** argv) {
    using quillmark::Console;
    Console::readInputAsBytes();
    return static_cast<int>(quillmark::runSettingsTool(
        Console::arguments(argc, argv), {std::cin, std::cout, std::cerr, Console::executablePath(),
                                         quillmark::makeTerminalAnswers}));
}
