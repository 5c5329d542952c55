#include <iostream>

#include "platform/console.h"
#include "replay/play/loaded_component.h"
#include "replay/tool/tool.h"

int main(int argc, char** argv) {
    using quillmark::Console;
    std::ios::sync_with_stdio(false);
    Console::readInputAsBytes();
    Console::reportFailedWrites();
    quillmark::replay::LoadedComponent component(Console::executablePath());
    return quillmark::replay::runTool(
        Console::arguments(argc, argv),
        {std::cin, std::cout, std::cerr, Console::errorsGoToTerminal(), Console::executablePath(),
         [&component] { return component.makeDocument(); },
         [&component](const quillmark::replay::HostServices& services) {
             return component.provide(services);
         }});
}
