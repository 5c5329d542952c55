#pragma once

#include <optional>
#include <string>

#include "settings/settings_table.h"
#include "settings_ui/memory_controls.h"

namespace quillmark {

/// Whether the page has controls for the setting.
[[nodiscard]] bool isOnPage(const SettingDescription& setting);

/// Describes the values that the controls of the setting accept ("true or false"). Empty if they
/// accept any text.
[[nodiscard]] OrxString acceptedValues(const SettingDescription& setting);

/// Whether `value` is one of the accepted values.
[[nodiscard]] bool accepts(const SettingDescription& setting, const OrxString& value);

/// An accepted value as the page would store it: booleans as "true" and "false".
[[nodiscard]] RegEntry storedForm(const SettingDescription& setting, const OrxString& value);

/// Whether the settings can keep the text (UTF-8): the driver's names and texts have 8 bits.
[[nodiscard]] bool canBeStored(const std::string& utf8);
/// The message for a text that cannot be stored.
[[nodiscard]] std::string notStorable(const std::string& utf8);

/// Puts an accepted value into the setting's controls.
void putValue(MemoryControls& controls, const SettingDescription& setting, const OrxString& value);

/// "true", "yes", "on", "y", "1" or their opposites, in any case; nothing for another text.
[[nodiscard]] std::optional<bool> yesOrNo(const OrxString& text);

}  // namespace quillmark
