#pragma once

#include <span>
#include <string_view>

#include "foundation/orx_string.h"
#include "settings/reg_entry.h"

namespace quillmark {

/// The type that the driver converts the text of a setting to.
enum class SettingType { text, boolean, shortInteger, integer };

/// One row of the table of all settings. The driver, which reads settings, and the settings page
/// and tool, which edit them, take names and defaults from here alone.
struct SettingDescription {
    const char* group = "";
    const char* name = "";
    SettingType type = SettingType::text;
    /// The value if nothing is stored. See `defaultValue`: for a file in the installation directory
    /// this is only the file part.
    const char* defaultText = "";
    /// A description for the user, in one line.
    const char* meaning = "";
    /// The default is a file in the installation directory (setting "InstallDir").
    bool defaultInInstallDir = false;
};

inline constexpr const char* htmlGroup = "Html";
inline constexpr const char* settingsGroup = "Settings";
inline constexpr const char* logGroup = "Log";

/// The highest heading level that the user may choose. The lowest is 0.
inline constexpr int maxHeadingLevel = 50;

/// The bits of "Navig".
inline constexpr int navigateByContents = 1;
inline constexpr int navigateByArrows = 2;
/// The meaning of a stored "Navig". 0, no navigation at all, means the contents.
[[nodiscard]] constexpr int effectiveNavigation(int stored) noexcept {
    return stored == 0 ? navigateByContents : stored;
}

/// All settings, in the order of the groups "Html", "Settings" and "Log".
[[nodiscard]] std::span<const SettingDescription> allSettings() noexcept;

/// The row of a group and name, found in any case (ASCII letters), or null.
[[nodiscard]] const SettingDescription* findSetting(std::string_view group,
                                                    std::string_view name) noexcept;

/// The value of a setting if nothing is stored, for use as the fallback of `RegisterCache::read`
/// and `RegisterDynamic::read`:
///
///     settings.read("Html", "TOCLevel", defaultValue("Html", "TOCLevel")).asInt();   // 50
///
/// For a file in the installation directory, "InstallDir" is read from the current store. The
/// default of an unknown setting is an empty text.
[[nodiscard]] RegEntry defaultValue(const SettingDescription& setting);
[[nodiscard]] RegEntry defaultValue(std::string_view group, std::string_view name);

/// "text", "boolean", "short" or "integer".
[[nodiscard]] std::string_view typeName(SettingType type) noexcept;

}  // namespace quillmark
