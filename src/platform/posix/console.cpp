#include "platform/console.h"

#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <system_error>

namespace quillmark {

std::vector<std::string> Console::arguments(int argc, const char* const* argv) {
    return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

std::string Console::executablePath() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure).string();
}

bool Console::errorsGoToTerminal() noexcept {
    return isatty(STDERR_FILENO) == 1;
}

void Console::reportFailedWrites() noexcept {
    static_cast<void>(signal(SIGPIPE, SIG_IGN));
    static_cast<void>(signal(SIGXFSZ, SIG_IGN));
}

void Console::readInputAsBytes() noexcept {}

}  // namespace quillmark
