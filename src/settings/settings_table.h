#pragma once

#include <span>
#include <string_view>

#include "foundation/orx_string.h"
#include "settings/reg_entry.h"

namespace quillmark {

/// How the driver reads the text of a setting.
enum class SettingType { text, boolean, shortInteger, integer };

/// One row of the table of all settings: the single truth about names and defaults, for the
/// driver, which reads them, and for the settings page and tool, which edit them.
struct SettingDescription {
    const char* group = "";
    const char* name = "";
    SettingType type = SettingType::text;
    /// The value in force while nothing is stored. `defaultValue` is the whole answer: for the
    /// style sheet this is only the file part.
    const char* defaultText = "";
    /// One line for a person.
    const char* meaning = "";
    /// The default is a file of the installation directory (setting "InstallDir").
    bool defaultInInstallDir = false;
};

inline constexpr const char* htmlGroup = "Html";
inline constexpr const char* settingsGroup = "Settings";
inline constexpr const char* logGroup = "Log";

/// The deepest heading level that a person may choose; the lowest is 0.
inline constexpr int maxHeadingLevel = 50;

/// The bits of "Navig".
inline constexpr int navigateByContents = 1;
inline constexpr int navigateByArrows = 2;
/// What a stored "Navig" means: 0, which asks for nothing, is taken for the contents.
[[nodiscard]] constexpr int effectiveNavigation(int stored) noexcept {
    return stored == 0 ? navigateByContents : stored;
}

/// All settings, the groups "Html", "Settings" and "Log" behind each other.
[[nodiscard]] std::span<const SettingDescription> allSettings() noexcept;

/// The row of that address, both parts matched ignoring ASCII case, or null.
[[nodiscard]] const SettingDescription* findSetting(std::string_view group,
                                                    std::string_view name) noexcept;

/// The value in force while nothing is stored, as `RegisterCache::read` and
/// `RegisterDynamic::read` take it:
///
///     settings.read("Html", "TOCLevel", defaultValue("Html", "TOCLevel")).asInt();   // 50
///
/// A default that lies in the installation directory reads "InstallDir" from the store in force.
/// An address that the table does not know gives an empty text.
[[nodiscard]] RegEntry defaultValue(const SettingDescription& setting);
[[nodiscard]] RegEntry defaultValue(std::string_view group, std::string_view name);

/// "text", "boolean", "short" or "integer".
[[nodiscard]] std::string_view typeName(SettingType type) noexcept;

}  // namespace quillmark
