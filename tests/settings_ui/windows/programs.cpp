#include "settings_ui/windows/programs.h"

#include <array>

namespace quillmark {

namespace {

std::string readAll(HANDLE pipe) {
    std::string text;
    std::array<char, 4096> buffer{};
    DWORD got = 0;
    while (ReadFile(pipe, buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr) !=
               FALSE &&
           got != 0) {
        text.append(buffer.data(), got);
    }
    return text;
}

}  // namespace

Programs& programs() {
    static Programs found;
    return found;
}

DWORD runProgram(const std::string& program, const std::string& arguments, std::string* output) {
    SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inherited, 0);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = writeEnd;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    std::string line = "\"" + program + "\" " + arguments;
    PROCESS_INFORMATION process{};
    const bool started = CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &start, &process) != FALSE;
    CloseHandle(writeEnd);
    const std::string written = readAll(readEnd);
    CloseHandle(readEnd);
    constexpr DWORD notStarted = 9999;
    DWORD status = notStarted;
    if (started) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    if (output != nullptr) {
        *output = written;
    }
    return status;
}

}  // namespace quillmark
