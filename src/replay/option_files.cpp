#include "replay/option_files.h"

#include <algorithm>
#include <utility>

#include "platform/drive_table.h"
#include "platform/sys_text.h"

namespace quillmark::replay {

namespace {

/// A system whose own names have drives needs no table of them.
constexpr bool systemHasDrives = std::filesystem::path::preferred_separator != '/';

char upper(char letter) noexcept {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

std::string utf8Path(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path pathFrom(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

OptionFiles::OptionFiles(std::vector<HostServices::Drive> drives) : drives_(std::move(drives)) {
    for (HostServices::Drive& drive : drives_) {
        drive.directory = utf8Path(std::filesystem::absolute(pathFrom(drive.directory)));
    }
}

std::vector<HostServices::Drive> OptionFiles::allDrives() const {
    std::vector<HostServices::Drive> all;
    for (char letter = 'A'; letter <= 'Z' && !systemHasDrives; ++letter) {
        const std::filesystem::path place =
            std::filesystem::current_path() / std::string{letter, ':'};
        all.push_back({letter, utf8Path(place)});
    }
    all.insert(all.end(), drives_.begin(), drives_.end());
    return all;
}

const HostServices::Drive* OptionFiles::driveOf(const std::string& name) const {
    if (systemHasDrives || name.size() < 2 || name[1] != ':') {
        return nullptr;
    }
    // As in the driver's own table, a letter given again has its last directory.
    const auto hit = std::find_if(drives_.rbegin(), drives_.rend(), [&](const auto& drive) {
        return upper(drive.letter) == upper(name.front());
    });
    return hit != drives_.rend() ? &*hit : nullptr;
}

std::filesystem::path OptionFiles::native(const std::string& name) const {
    const HostServices::Drive* const drive = driveOf(name);
    if (drive == nullptr) {
        return std::filesystem::absolute(pathFrom(name));
    }
    std::string rest = name.substr(2);
    std::ranges::replace(rest, '\\', '/');
    return pathFrom(drive->directory + "/" + rest);
}

OrxString OptionFiles::driver(const std::string& name) const {
    return driveOf(name) != nullptr ? SysText::fromUtf8(name) : driverPath(utf8Path(native(name)));
}

}  // namespace quillmark::replay
