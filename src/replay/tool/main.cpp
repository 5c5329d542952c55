#include <iostream>

#include "command_line/program.h"
#include "platform/console.h"
#include "replay/play/loaded_component.h"
#include "replay/tool/messages.h"
#include "replay/tool/tool.h"

namespace {

int runReplay(int argc, char** argv) {
    using quillmark::Console;
    std::ios::sync_with_stdio(false);
    quillmark::replay::Messages messages(std::cerr, false);
    quillmark::replay::LoadedComponent component(
        Console::executablePath(), [&messages](const std::string& warning) {
            messages.write("dochtml-replay: warning: " + warning);
        });
    return quillmark::replay::runTool(
        Console::arguments(argc, argv),
        {std::cin, std::cout, std::cerr, Console::errorsGoToTerminal(), Console::executablePath(),
         [&component] { return component.makeDocument(); },
         [&component](const quillmark::replay::HostServices& services) {
             return component.provide(services);
         },
         [&component] { return component.description(); }});
}

}  // namespace

int main(int argc, char** argv) {
    return quillmark::runProgram("dochtml-replay", argc, argv, &runReplay);
}
