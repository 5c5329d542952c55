#include <dlfcn.h>

#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "component/posix/class_file.h"
#include "dochtml/entry_points.h"

// Registers a component library in the user's class file. On Windows the system's own program does
// this.

namespace {

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitBadUsage = 2;

struct Order {
    bool unregister = false;
    std::string library;
};

void printUsage(std::ostream& out) {
    out << "Usage: dochtml-register [--unregister] [LIBRARY]\n"
           "Makes the document component known to this user's programs by class and program\n"
           "identifier, or takes that back. Without LIBRARY it is the one installed with this\n"
           "program.\n";
}

/// The library beside the program, or in the library directory next to the program's.
std::string installedLibrary() {
    namespace fs = std::filesystem;
    const fs::path here = fs::read_symlink("/proc/self/exe").parent_path();
    for (const fs::path& directory : {here, here / "../lib", here / "../" DOCHTML_LIBDIR}) {
        const fs::path file = (directory / "libdochtmlcom.so").lexically_normal();
        if (fs::exists(file)) {
            return file.string();
        }
    }
    return "libdochtmlcom.so";
}

int run(const Order& order) {
    void* library = dlopen(order.library.c_str(), RTLD_NOW | RTLD_LOCAL);
    const char* entry = order.unregister ? "DllUnregisterServer" : "DllRegisterServer";
    void* found = library == nullptr ? nullptr : dlsym(library, entry);
    if (found == nullptr) {
        std::cerr << "dochtml-register: " << dlerror() << '\n';
        return exitFailed;
    }
    const HRESULT result = reinterpret_cast<DochtmlEntryPoint>(found)();
    if (FAILED(result)) {
        std::cerr << "dochtml-register: " << entry << " failed with result 0x" << std::hex
                  << static_cast<unsigned>(result) << "; the classes are kept in "
                  << quillmark::classFilePath().string() << '\n';
        return exitFailed;
    }
    return exitDone;
}

}  // namespace

int main(int argc, char** argv) {
    Order order;
    for (const std::string_view argument : std::vector<std::string_view>(argv + 1, argv + argc)) {
        if (argument == "--help") {
            printUsage(std::cout);
            return exitDone;
        }
        if (argument == "--version") {
            std::cout << "dochtml-register " DOCHTML_VERSION "\n";
            return exitDone;
        }
        if (argument == "--unregister") {
            order.unregister = true;
        } else if (argument.starts_with('-') || !order.library.empty()) {
            printUsage(std::cerr);
            return exitBadUsage;
        } else {
            // The loader would search the system's libraries for a name without a directory.
            order.library = std::filesystem::absolute(argument).string();
        }
    }
    if (order.library.empty()) {
        order.library = installedLibrary();
    }
    return run(order);
}
