#include "platform/sys_shell.h"

#include <unistd.h>

#include <string>
#include <vector>

#include "platform/files/drive_table.h"
#include "platform/files/file_system.h"
#include "platform/files/sys_file.h"
#include "platform/posix/launch.h"

namespace quillmark {

namespace {

/// Results of the Windows shell for the two failures that are distinguished here.
constexpr int fileNotFound = 2;
constexpr int accessDenied = 5;

/// A name that cannot be mistaken for an option or for a command in PATH.
std::string asPath(const std::string& name) {
    return name.find('/') != std::string::npos ? name : "./" + name;
}

}  // namespace

void SysShell::open(const OrxString& fileName) {
    if (!FileSystem::current().mayStart("xdg-open")) {
        return;
    }
    if (SysFile::isHyperLink(fileName)) {
        static_cast<void>(launchDetached("xdg-open", {fileName.str()}));
        return;
    }
    // An empty name would open the current directory.
    const std::string path = nativePath(fileName);
    if (!path.empty()) {
        static_cast<void>(launchDetached("xdg-open", {asPath(path)}));
    }
}

int SysShell::start(const OrxString& program, const std::vector<OrxString>& arguments) {
    const std::string path = asPath(nativePath(program));
    if (!FileSystem::native().fileExists(program)) {
        return fileNotFound;
    }
    if (access(path.c_str(), X_OK) != 0 || !FileSystem::current().mayStart(program)) {
        return accessDenied;
    }
    // Arguments may be file names in the driver's form, but programs expect the system's.
    std::vector<std::string> list;
    list.reserve(arguments.size());
    for (const OrxString& argument : arguments) {
        list.push_back(nativePath(argument));
    }
    return launchDetached(path, list) ? started : accessDenied;
}

}  // namespace quillmark
