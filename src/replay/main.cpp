#include <iostream>

#include "driver/doc_html.h"
#include "platform/console.h"
#include "replay/in_process_document.h"
#include "replay/tool.h"

int main(int argc, char** argv) {
    using quillmark::Console;
    std::ios::sync_with_stdio(false);
    Console::readBytes();
    return quillmark::replay::runTool(
        Console::arguments(argc, argv),
        {std::cin, std::cout, std::cerr, Console::errorsAreWatched(), Console::executablePath(),
         [] {
             return std::make_unique<quillmark::replay::InProcessDocument>(
                 std::make_unique<quillmark::DocHtml>());
         }});
}
