#include "platform/posix/home_directory.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace quillmark {

std::string environmentDirectory(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr && *value == '/' ? value : "";
}

std::string homeDirectory() {
    std::string home = environmentDirectory("HOME");
    if (home.empty()) {
        passwd entry{};
        passwd* found = nullptr;
        std::array<char, 4096> buffer{};
        if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
            found != nullptr && found->pw_dir != nullptr) {
            home = found->pw_dir;
        }
    }
    return home;
}

}  // namespace quillmark
