#include "settings_ui/tool/control_values.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "foundation/utf8.h"

namespace quillmark {

namespace {

constexpr std::string_view navigation = "Navig";
constexpr std::string_view diagramType = "DiagramType";

bool carries(const PageControl& row, const SettingDescription& setting) {
    return row.setting != nullptr && std::string_view(row.setting) == setting.name;
}

const PageControl* controlOf(const SettingDescription& setting) {
    if (std::string_view(setting.group) != htmlGroup) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(
        pageControls(), [&](const PageControl& row) { return carries(row, setting); });
    return found == pageControls().end() ? nullptr : &*found;
}

/// The highest value that the check boxes or radio buttons of a setting can represent.
int highestOf(const SettingDescription& setting) {
    return setting.name == navigation ? navigateByContents | navigateByArrows : 1;
}

bool isChoice(const SettingDescription& setting) {
    return isOnPage(setting) && (setting.name == navigation || setting.name == diagramType);
}

bool isInteger(const SettingDescription& setting) {
    return setting.type == SettingType::integer || setting.type == SettingType::shortInteger;
}

/// Whether the text is an integer, or empty where that is the default.
bool isNumberFor(const SettingDescription& setting, std::string_view text) {
    if (text.empty()) {
        return std::string_view(setting.defaultText).empty();
    }
    text.remove_prefix(text.starts_with('-') ? 1 : 0);
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool isDigitUpTo(const OrxString& text, int highest) {
    return text.length() == 1 && text.view()[0] >= '0' && text.view()[0] <= '0' + highest;
}

}  // namespace

bool isOnPage(const SettingDescription& setting) {
    return controlOf(setting) != nullptr;
}

std::optional<bool> yesOrNo(const OrxString& text) {
    constexpr std::array<std::string_view, 5> yes{"true", "yes", "on", "1", "y"};
    constexpr std::array<std::string_view, 5> no{"false", "no", "off", "0", "n"};
    OrxString lowered = text;
    lowered.toLower();
    if (std::ranges::find(yes, lowered.view()) != yes.end()) {
        return true;
    }
    if (std::ranges::find(no, lowered.view()) != no.end()) {
        return false;
    }
    return std::nullopt;
}

OrxString acceptedValues(const SettingDescription& setting) {
    if (setting.type == SettingType::boolean) {
        return "true or false";
    }
    if (isChoice(setting)) {
        const bool isNavigation = setting.name == navigation;
        return (isNavigation ? "a number from 1 to " : "a number from 0 to ") +
               RegEntry::ofInt(highestOf(setting)).asString();
    }
    return isInteger(setting) ? "a number" : "";
}

bool accepts(const SettingDescription& setting, const OrxString& value) {
    if (setting.type == SettingType::boolean) {
        return yesOrNo(value).has_value();
    }
    if (isChoice(setting)) {
        // The page itself refuses 0 for the navigation, and says why.
        return isDigitUpTo(value, highestOf(setting));
    }
    return !isInteger(setting) || isNumberFor(setting, value.view());
}

RegEntry storedForm(const SettingDescription& setting, const OrxString& value) {
    return setting.type == SettingType::boolean ? RegEntry::ofBool(yesOrNo(value).value_or(false))
                                                : RegEntry::ofString(value);
}

bool canBeStored(const std::string& text) {
    utf8::Check check;
    return check.take(text) && check.isComplete();
}

std::string notStorable(const std::string& text) {
    return "\"" + text + "\" is not in UTF-8";
}

void putValue(MemoryControls& controls, const SettingDescription& setting, const OrxString& value) {
    const int number = RegEntry::ofString(value).asInt();
    if (setting.name == navigation) {
        controls.setChecked(control::contents, (number & navigateByContents) != 0);
        controls.setChecked(control::arrows, (number & navigateByArrows) != 0);
    } else if (setting.name == diagramType) {
        controls.setChecked(control::jpeg, number == 0);
        controls.setChecked(control::gif, number != 0);
    } else if (setting.type == SettingType::boolean) {
        controls.setChecked(controlOf(setting)->id, yesOrNo(value).value_or(false));
    } else {
        controls.setText(controlOf(setting)->id, value);
    }
}

}  // namespace quillmark
