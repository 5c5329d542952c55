#include "command_line/scoped_drives.h"

#include <utility>

#include "platform/files/drive_table.h"

namespace quillmark {

ScopedDrives::ScopedDrives(std::vector<Drive> drives) : drives_(std::move(drives)) {
    for (const Drive& drive : drives_) {
        DriveTable::set(drive.letter, drive.directory);
    }
}

ScopedDrives::~ScopedDrives() {
    for (const Drive& drive : drives_) {
        DriveTable::set(drive.letter, {});
    }
}

}  // namespace quillmark
