#include "replay/tool/option_files.h"

#include <algorithm>
#include <utility>

#include "command_line/utf8_path.h"
#include "foundation/ascii.h"
#include "foundation/utf8.h"
#include "platform/files/drive_table.h"
#include "platform/system_facts.h"
#include "replay/input/bad_input.h"

namespace quillmark::replay {

void checkFileName(const OrxString& name, const TextEncoding& encoding) {
    if (!encoding.holds(utf8::toUtf16(name))) {
        throw BadInput("the driver's 8-bit code page cannot hold the file name " +
                       nativePath(name) + " (--set Html.CharSet=UTF-8 keeps all names)");
    }
}

std::filesystem::path startDirectory() {
    std::error_code failure;
    std::filesystem::path directory = std::filesystem::current_path(failure);
    if (failure) {
        throw BadInput("cannot determine the current directory: " + failure.message());
    }
    return directory;
}

OptionFiles::OptionFiles(std::vector<Drive> drives) : drives_(std::move(drives)) {
    for (Drive& drive : drives_) {
        drive.directory = utf8Path(startDirectory() / pathFrom(drive.directory));
    }
}

std::vector<Drive> OptionFiles::allDrives() const {
    std::vector<Drive> all;
    for (char letter = 'A'; letter <= 'Z' && !system_facts::hasDrives(); ++letter) {
        const std::filesystem::path place = startDirectory() / std::string{letter, ':'};
        all.push_back({letter, utf8Path(place)});
    }
    all.insert(all.end(), drives_.begin(), drives_.end());
    return all;
}

const Drive* OptionFiles::driveOf(const std::string& name) const {
    // Names of a system with drives are used as they are.
    if (system_facts::hasDrives() || name.size() < 2 || name[1] != ':') {
        return nullptr;
    }
    // As in the driver's own table, the last directory given for a letter wins.
    const auto hit = std::find_if(drives_.rbegin(), drives_.rend(), [&](const auto& drive) {
        return ascii::toUpper(drive.letter) == ascii::toUpper(name.front());
    });
    return hit != drives_.rend() ? &*hit : nullptr;
}

std::filesystem::path OptionFiles::native(const std::string& name) const {
    const Drive* const drive = driveOf(name);
    if (drive == nullptr) {
        return startDirectory() / pathFrom(name);
    }
    return pathFrom(DriveTable::nameUnder(drive->directory, name.substr(2)));
}

OrxString OptionFiles::driver(const std::string& name) const {
    if (driveOf(name) != nullptr) {
        return name;
    }
    return driverPath(utf8Path(native(name)));
}

}  // namespace quillmark::replay
