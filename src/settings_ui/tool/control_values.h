#pragma once

#include <optional>

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

/// Puts an accepted value into the setting's controls.
void putValue(MemoryControls& controls, const SettingDescription& setting, const OrxString& value);

/// "true", "yes", "on", "y", "1" or their opposites, in any case; nothing for another text.
[[nodiscard]] std::optional<bool> yesOrNo(const OrxString& text);

}  // namespace quillmark
