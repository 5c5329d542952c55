#include "platform/system_facts.h"

#include <unistd.h>

#include <string>

#include "platform/files/drive_table.h"
#include "platform/posix/home_directory.h"

namespace quillmark::system_facts {

namespace {

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

bool hasDrives() noexcept {
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
