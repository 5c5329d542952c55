#include <cstdio>
#include <iostream>
#include <new>

#include "platform/console.h"
#include "replay/play/loaded_component.h"
#include "replay/tool/messages.h"
#include "replay/tool/tool.h"

namespace {

int runProgram(int argc, char** argv) {
    using quillmark::Console;
    std::ios::sync_with_stdio(false);
    Console::readInputAsBytes();
    Console::reportFailedWrites();
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
    try {
        return runProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        // Needs no memory: standard error has no buffer.
        std::fputs("dochtml-replay: out of memory\n", stderr);
        return quillmark::replay::exitFailed;
    }
}
