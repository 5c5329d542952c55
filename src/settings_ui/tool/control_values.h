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

/// Whether the settings can keep a text: it must be in UTF-8.
[[nodiscard]] bool canBeStored(const std::string& text);
/// The message for a text that cannot be stored.
[[nodiscard]] std::string notStorable(const std::string& text);

/// Puts an accepted value into the setting's controls.
void putValue(MemoryControls& controls, const SettingDescription& setting, const OrxString& value);

/// "true", "yes", "on", "y", "1" or their opposites, in any case; nothing for another text.
[[nodiscard]] std::optional<bool> yesOrNo(const OrxString& text);

}  // namespace quillmark
