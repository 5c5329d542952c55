#include "settings_ui/settings_page.h"

#include "platform/text_encoding.h"
#include "settings/register_dynamic.h"
#include "settings/settings_table.h"
#include "settings_ui/settings_saver.h"

namespace quillmark {

namespace {

constexpr const char* helpFileSetting = "HelpFile";
constexpr unsigned long helpContext = 332903;

RegEntry stored(std::string_view group, std::string_view name) {
    return RegisterDynamic().read(group, name, defaultValue(group, name));
}

RegEntry storedFor(int id) {
    return stored(htmlGroup, settingOf(id));
}

}  // namespace

bool SettingsPage::handle(int id, ControlEvent event) {
    const TextEncoding::Scope scope(TextEncoding::utf8());
    switch (routeOf(id, event)) {
        case PageAction::none:
            return false;
        case PageAction::load:
            load();
            break;
        case PageAction::markDirty:
            setDirty(true);
            break;
        case PageAction::browseImages:
            browseDirectory(control::imagesDirectory, "Select the image directory.");
            break;
        case PageAction::browseDocuments:
            browseDirectory(control::documentsDirectory,
                            "Select the external documents directory.");
            break;
        case PageAction::browseStyleSheet:
            browseStyleSheet();
            break;
        case PageAction::browseIconFile:
            browseIconFile();
            break;
        case PageAction::help:
            showHelp();
            break;
    }
    return true;
}

void SettingsPage::showHelp() {
    host_.showHelp(stored(settingsGroup, helpFileSetting).asString(), helpContext);
}

void SettingsPage::setDirty(bool dirty) {
    // Loading is not an edit, although every box reports its new text.
    if (loading_ || dirty_ == dirty) {
        return;
    }
    dirty_ = dirty;
    host_.dirtyChanged(dirty);
}

void SettingsPage::load() {
    if (!notYetLoaded_) {
        return;
    }
    loading_ = true;
    for (const int id : {control::imagesDirectory, control::documentsDirectory}) {
        controls_.setText(id, storedFor(id).asString());
    }
    const int level = storedFor(control::headingLevel).asInt();
    controls_.setText(control::headingLevel, RegEntry::ofInt(level).asString());
    controls_.setRange(control::headingLevelSpin, lowestHeadingLevel, highestHeadingLevel);
    controls_.setText(control::styleSheet, storedFor(control::styleSheet).asString());
    loadNavigation();
    for (const int id : checksInOrder) {
        controls_.setChecked(id, storedFor(id).asBool());
    }
    controls_.setText(control::iconFile, storedFor(control::iconFile).asString());
    const bool isGif = storedFor(control::gif).asShort() != 0;
    controls_.setChecked(isGif ? control::gif : control::jpeg, true);
    loading_ = false;
    notYetLoaded_ = false;
}

void SettingsPage::loadNavigation() {
    const int navigation = effectiveNavigation(storedFor(control::contents).asShort());
    controls_.setChecked(control::arrows, (navigation & navigateByArrows) != 0);
    controls_.setChecked(control::contents, (navigation & navigateByContents) != 0);
}

bool SettingsPage::apply() {
    const TextEncoding::Scope scope(TextEncoding::utf8());
    if (!SettingsSaver(controls_, host_).save()) {
        return false;
    }
    setDirty(false);
    return true;
}

bool SettingsPage::applyOnly(std::span<const std::string_view> settings) {
    const TextEncoding::Scope scope(TextEncoding::utf8());
    return SettingsSaver(controls_, host_, settings).save();
}

bool SettingsPage::accepts(std::span<const std::string_view> settings) {
    return SettingsSaver(controls_, host_, settings).check();
}

void SettingsPage::browseDirectory(int id, const char* title) {
    // The setting is read, as for the files, but the dialog has no initial directory.
    static_cast<void>(storedFor(id));
    const std::optional<OrxString> chosen = host_.chooseDirectory(title);
    if (chosen) {
        controls_.setText(id, *chosen);
    }
}

void SettingsPage::browseStyleSheet() {
    const std::optional<OrxString> chosen =
        host_.chooseFile({"Html Style Sheets (*.css)", "*.css", "Select Html Style Sheet",
                          storedFor(control::styleSheet).asString()});
    if (chosen) {
        controls_.setText(control::styleSheet, *chosen);
    }
}

void SettingsPage::browseIconFile() {
    const std::optional<OrxString> chosen =
        host_.chooseFile({"Icon Zip File (*.zip)", "*.zip", "Select Icon Zip File",
                          controls_.text(control::iconFile)});
    if (chosen) {
        controls_.setText(control::iconFile, *chosen);
    }
}

}  // namespace quillmark
