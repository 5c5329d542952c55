#include "platform/sys_shell.h"

#include <cstdint>
#include <string>
#include <vector>

#include "platform/argument_text.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_system.h"
#include "platform/files/sys_file.h"
#include "platform/files/windows/wide_name.h"
#include "platform/windows/windows_api.h"
// Needs the types of the wrapper above.
#include <shellapi.h>

namespace quillmark {

namespace {

/// The shell must not continue in the background after it has returned.
constexpr ULONG noAsync = 0x100;

/// Calls the shell's execute service with the default verb, without an owner window or a working
/// directory, and returns its instance result.
int execute(const std::wstring& file, const std::wstring& parameters, int show) {
    SHELLEXECUTEINFOW request{};
    request.cbSize = sizeof request;
    request.fMask = noAsync;
    request.lpFile = file.c_str();
    request.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
    request.nShow = show;
    ShellExecuteExW(&request);
    return static_cast<int>(reinterpret_cast<std::intptr_t>(request.hInstApp));
}

}  // namespace

void SysShell::open(const OrxString& fileName) {
    const std::wstring target =
        wideText(SysFile::isHyperLink(fileName) ? fileName.str() : nativePath(fileName));
    // An empty name would open the current directory.
    if (!target.empty() && FileSystem::current().mayStart(fileName)) {
        execute(target, {}, SW_SHOWNORMAL);
    }
}

int SysShell::start(const OrxString& program, const std::vector<OrxString>& arguments) {
    // Checked first, because the shell would report a missing program in a window.
    if (!FileSystem::native().fileExists(program)) {
        return SE_ERR_FNF;
    }
    if (!FileSystem::current().mayStart(program)) {
        return SE_ERR_ACCESSDENIED;
    }
    std::vector<std::string> list;
    for (const OrxString& argument : arguments) {
        list.push_back(argument.str());
    }
    return execute(wideText(nativePath(program)), wideText(joinedArguments(list)), SW_HIDE);
}

}  // namespace quillmark
