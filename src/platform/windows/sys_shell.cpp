#include "platform/sys_shell.h"

#include <cstdint>
#include <string>

#include "platform/drive_table.h"
#include "platform/file_system.h"
#include "platform/sys_file.h"
#include "platform/windows/windows_api.h"
// Needs the types of the wrapper above.
#include <shellapi.h>

namespace quillmark {

namespace {

/// The flag that forbids the shell to go on in the background when it has returned.
constexpr ULONG noAsync = 0x100;

/// The instance result of the shell's execute service, with the default verb, no window owner and
/// no working directory.
int execute(const char* file, const char* parameters, int show) {
    SHELLEXECUTEINFOA request{};
    request.cbSize = sizeof request;
    request.fMask = noAsync;
    request.lpFile = file;
    request.lpParameters = parameters;
    request.nShow = show;
    ShellExecuteExA(&request);
    return static_cast<int>(reinterpret_cast<std::intptr_t>(request.hInstApp));
}

}  // namespace

void SysShell::open(const OrxString& fileName) {
    const std::string target =
        SysFile::isHyperLink(fileName) ? fileName.str() : nativePath(fileName);
    // No name at all would open the current directory.
    if (!target.empty()) {
        execute(target.c_str(), nullptr, SW_SHOWNORMAL);
    }
}

int SysShell::start(const OrxString& program, const OrxString& arguments) {
    // Asked here, because the shell would tell a person about a missing program in a window.
    if (!FileSystem::native().fileExists(program)) {
        return SE_ERR_FNF;
    }
    return execute(nativePath(program).c_str(), arguments.data(), SW_HIDE);
}

}  // namespace quillmark
