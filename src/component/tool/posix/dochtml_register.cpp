#include <cerrno>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "command_line/bad_usage.h"
#include "command_line/installed_files.h"
#include "command_line/option_parser.h"
#include "command_line/program.h"
#include "component/client/shared_library.h"
#include "component/posix/class_file.h"
#include "dochtml/client.h"
#include "dochtml/entry_points.h"
#include "platform/console.h"

// Registers a component library in the user's class file. On Windows the system's own program does
// this.

namespace quillmark {
namespace {

enum ExitStatus { exitDone = 0, exitBadUsage = 2 };

struct Options {
    bool unregister = false;
    bool help = false;
    bool version = false;
};

void addOptions(OptionParser& parser, Options& options) {
    parser.addFlag("--unregister", "remove the registration", options.unregister);
    parser.addFlag("-h,--help", "show this help", options.help);
    parser.addFlag("--version", "show the version and the components", options.version);
}

void writeHelp(const OptionParser& parser) {
    std::cout
        << "Usage: dochtml-register [OPTIONS] [LIBRARY]\n\n"
           "Registers the document component for this user, so that programs find it by its\n"
           "class identifier or program identifier. Without LIBRARY it registers the library\n"
           "that is installed with this program.\n"
        << parser.help()
        << "\nExit status: 0 if all went well; 1 if the registration failed; 2 for bad usage.\n";
}

/// The library that is installed with this program, or its bare name if there is none.
std::string ownLibrary() {
    const std::string name = componentLibraryName();
    return installedLibrary(Console::executablePath(), name).value_or(name);
}

/// The registered library in words, for the user.
std::string registeredLibrary() {
    try {
        const std::string file = Component::registeredLibrary("DocHtml.DocHtml.2.1.0");
        return std::filesystem::exists(file) ? file : file + " (which is gone)";
    } catch (const ComponentError& failure) {
        return failure.isNotRegistered() ? "none" : failure.what();
    }
}

void writeVersion() {
    std::cout << "dochtml-register " DOCHTML_VERSION "\n"
              << "installed component: " << ownLibrary() << '\n'
              << "registered component: " << registeredLibrary() << '\n';
}

/// The library to register. The loader searches the system's libraries for a name without a
/// directory.
std::string libraryOf(const std::vector<std::string>& operands) {
    if (operands.size() > 1) {
        throw BadUsage("more than one library given");
    }
    if (!operands.empty()) {
        return std::filesystem::absolute(operands.front()).string();
    }
    return ownLibrary();
}

/// Calls the library's entry point. The library stays loaded until the program ends.
void callEntryPoint(const std::string& file, const char* name) {
    const SharedLibrary library(file);
    void* const found = library.find(name);
    if (found == nullptr) {
        throw ComponentError(file + " does not export " + name, CO_E_ERRORINDLL);
    }
    errno = 0;
    const HRESULT result = reinterpret_cast<DochtmlEntryPoint>(found)();
    const int reason = errno;
    if (FAILED(result)) {
        std::ostringstream words;
        words << name << " failed with result 0x" << std::hex << static_cast<unsigned>(result)
              << "; the classes are kept in " << classFilePath().string();
        if (reason != 0) {
            words << ": " << std::generic_category().message(reason);
        }
        throw ComponentError(words.str(), result);
    }
}

void run(const std::vector<std::string>& arguments) {
    Options options;
    OptionParser parser;
    addOptions(parser, options);
    const std::vector<std::string> operands = parser.parse(arguments);
    if (options.help) {
        writeHelp(parser);
    } else if (options.version) {
        writeVersion();
    } else {
        callEntryPoint(libraryOf(operands),
                       options.unregister ? "DllUnregisterServer" : "DllRegisterServer");
    }
}

int runRegister(int argc, char** argv) {
    try {
        run(Console::arguments(argc, argv));
    } catch (const BadUsage& usage) {
        std::cerr << "dochtml-register: " << usage.what() << "\nTry dochtml-register --help.\n";
        return exitBadUsage;
    }
    if (const std::string problem = outputProblem(std::cout); !problem.empty()) {
        throw std::runtime_error(problem);
    }
    return exitDone;
}

}  // namespace
}  // namespace quillmark

int main(int argc, char** argv) {
    return quillmark::runProgram("dochtml-register", argc, argv, &quillmark::runRegister);
}
