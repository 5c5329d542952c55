#include "platform/system_facts.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

#include "platform/drive_table.h"

namespace quillmark::system_facts {

namespace {

/// A directory that the environment names; empty unless it is an absolute one.
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

OrxString withoutLastSeparator(std::string directory) {
    while (directory.size() > 1 && directory.back() == '/') {
        directory.pop_back();
    }
    return driverPath(directory);
}

}  // namespace

bool namesIgnoreCase() noexcept {
    return false;
}

OrxString temporaryDirectory() {
    const std::string named = environmentDirectory("TMPDIR");
    return withoutLastSeparator(named.empty() ? "/tmp" : named);
}

OrxString userConfigurationDirectory() {
    const std::string named = environmentDirectory("XDG_CONFIG_HOME");
    return withoutLastSeparator(named.empty() ? homeDirectory() + "/.config" : named);
}

std::tm localTime(std::time_t moment) {
    std::tm result{};
    localtime_r(&moment, &result);
    return result;
}

unsigned long processId() noexcept {
    return static_cast<unsigned long>(getpid());
}

}  // namespace quillmark::system_facts
