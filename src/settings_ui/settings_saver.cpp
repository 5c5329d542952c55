#include "settings_ui/settings_saver.h"

#include <algorithm>

#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "settings/register_dynamic.h"
#include "settings_ui/page_table.h"

namespace quillmark {

bool SettingsSaver::save() {
    if (!saveNavigation()) {
        return false;
    }
    saveChecks();
    return saveHeadingLevel() && saveDirectory(control::imagesDirectory, "images directory") &&
           saveDirectory(control::documentsDirectory, "external documents directory") &&
           saveFile(control::styleSheet, "style sheet") && saveFile(control::iconFile, "icon file");
}

bool SettingsSaver::check() {
    writes_ = false;
    const bool accepted = save();
    writes_ = true;
    return accepted;
}

bool SettingsSaver::saveNavigation() {
    const std::string_view setting = settingOf(control::contents);
    if (!isWanted(setting)) {
        return true;
    }
    const int navigation = (controls_.isChecked(control::contents) ? navigateByContents : 0) |
                           (controls_.isChecked(control::arrows) ? navigateByArrows : 0);
    if (navigation == 0) {
        return refuse("You must select at least one navigation method.");
    }
    write(setting, RegEntry::ofShort(static_cast<short>(navigation)));
    return true;
}

void SettingsSaver::saveChecks() {
    const short diagramType = controls_.isChecked(control::jpeg) ? 0 : 1;
    write(settingOf(control::jpeg), RegEntry::ofShort(diagramType));
    for (const int id : checksInOrder) {
        write(settingOf(id), RegEntry::ofBool(controls_.isChecked(id)));
    }
}

bool SettingsSaver::saveHeadingLevel() {
    constexpr std::size_t readCharacters = 256;
    const std::string_view setting = settingOf(control::headingLevel);
    if (!isWanted(setting)) {
        return true;
    }
    const OrxString text = controls_.text(control::headingLevel).substr(0, readCharacters);
    // Read like every number of the store: a text without digits is 0, and accepted.
    const int level = RegEntry::ofString(text).asInt();
    if (level < lowestHeadingLevel || level > highestHeadingLevel) {
        return refuse("Heading level must fall between " +
                      RegEntry::ofInt(lowestHeadingLevel).asString() + " and " +
                      RegEntry::ofInt(highestHeadingLevel).asString() + ".");
    }
    write(setting, RegEntry::ofInt(level));
    return true;
}

bool SettingsSaver::saveDirectory(int id, const char* what) {
    const std::string_view setting = settingOf(id);
    if (!isWanted(setting)) {
        return true;
    }
    const OrxString name = controls_.text(id);
    // A relative directory is below the output directory, which is not known yet.
    const bool hasDrive = name.length() > 1 && name.view()[1] == ':';
    if (hasDrive && !SysDirectory::exists(name)) {
        return refuse(name + "\nDirectory Not Found.\n" + "Please verify the correct " + what +
                      " name was given.");
    }
    write(setting, RegEntry::ofString(name));
    return true;
}

bool SettingsSaver::saveFile(int id, const char* what) {
    const std::string_view setting = settingOf(id);
    if (!isWanted(setting)) {
        return true;
    }
    const OrxString name = controls_.text(id);
    if (!name.isEmpty() && !SysFile::exists(name)) {
        return refuse(name + "\nFile Not Found.\n" + "Please verify the correct " + what +
                      " name was given.");
    }
    write(setting, RegEntry::ofString(name));
    return true;
}

bool SettingsSaver::refuse(const OrxString& message) {
    // The focus does not move to the box with the wrong value.
    host_.showMessage(message, "Invalid Value");
    return false;
}

void SettingsSaver::write(std::string_view setting, const RegEntry& entry) {
    if (writes_ && isWanted(setting)) {
        RegisterDynamic().write(htmlGroup, setting, entry);
    }
}

bool SettingsSaver::isWanted(std::string_view setting) const {
    return !wanted_ || std::ranges::find(*wanted_, setting) != wanted_->end();
}

}  // namespace quillmark
