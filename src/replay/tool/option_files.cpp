#include "replay/tool/option_files.h"

#include <algorithm>
#include <utility>

#include "foundation/ascii.h"
#include "platform/drive_table.h"
#include "platform/sys_text.h"
#include "platform/system_facts.h"
#include "replay/input/bad_input.h"

namespace quillmark::replay {

namespace {

/// What the driver's 8-bit code page cannot hold would come out as another file's name.
const std::string& heldName(const std::string& utf8) {
    if (!SysText::holdsUtf8(utf8)) {
        throw BadInput("a file name that the driver's 8-bit code page cannot hold: " + utf8);
    }
    return utf8;
}

}  // namespace

std::filesystem::path startDirectory() {
    std::error_code failure;
    std::filesystem::path directory = std::filesystem::current_path(failure);
    if (failure) {
        throw BadInput("the working directory cannot be told: " + failure.message());
    }
    heldName(utf8Path(directory));
    return directory;
}

std::string utf8Path(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path pathFrom(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

OptionFiles::OptionFiles(std::vector<HostServices::Drive> drives) : drives_(std::move(drives)) {
    for (HostServices::Drive& drive : drives_) {
        drive.directory = utf8Path(startDirectory() / pathFrom(drive.directory));
    }
}

std::vector<HostServices::Drive> OptionFiles::allDrives() const {
    std::vector<HostServices::Drive> all;
    for (char letter = 'A'; letter <= 'Z' && !system_facts::hasDrives(); ++letter) {
        const std::filesystem::path place = startDirectory() / std::string{letter, ':'};
        all.push_back({letter, utf8Path(place)});
    }
    all.insert(all.end(), drives_.begin(), drives_.end());
    return all;
}

const HostServices::Drive* OptionFiles::driveOf(const std::string& name) const {
    // A system whose own names have drives needs no table of them.
    if (system_facts::hasDrives() || name.size() < 2 || name[1] != ':') {
        return nullptr;
    }
    // As in the driver's own table, a letter given again has its last directory.
    const auto hit = std::find_if(drives_.rbegin(), drives_.rend(), [&](const auto& drive) {
        return ascii::toUpper(drive.letter) == ascii::toUpper(name.front());
    });
    return hit != drives_.rend() ? &*hit : nullptr;
}

std::filesystem::path OptionFiles::native(const std::string& name) const {
    const HostServices::Drive* const drive = driveOf(name);
    if (drive == nullptr) {
        return startDirectory() / pathFrom(name);
    }
    return pathFrom(DriveTable::nameUnder(drive->directory, name.substr(2)));
}

OrxString OptionFiles::driver(const std::string& name) const {
    if (driveOf(name) != nullptr) {
        return SysText::fromUtf8(heldName(name));
    }
    return driverPath(heldName(utf8Path(native(name))));
}

}  // namespace quillmark::replay
