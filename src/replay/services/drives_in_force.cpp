#include "replay/services/drives_in_force.h"

#include <utility>

#include "platform/drive_table.h"

namespace quillmark::replay {

DrivesInForce::DrivesInForce(std::vector<HostServices::Drive> drives) : drives_(std::move(drives)) {
    for (const HostServices::Drive& drive : drives_) {
        DriveTable::set(drive.letter, drive.directory);
    }
}

DrivesInForce::~DrivesInForce() {
    for (const HostServices::Drive& drive : drives_) {
        DriveTable::set(drive.letter, {});
    }
}

}  // namespace quillmark::replay
