#include "settings/settings_table.h"

#include <algorithm>
#include <array>

#include "foundation/ascii.h"
#include "platform/files/sys_file.h"
#include "settings/register_dynamic.h"

namespace quillmark {

namespace {

constexpr std::array settingRows{
    SettingDescription{htmlGroup, "HtmlPixDir", SettingType::text, "pix",
                       "Directory for pictures, relative to the output directory; made when "
                       "missing"},
    SettingDescription{htmlGroup, "ExternalDocDir", SettingType::text, "docs",
                       "Directory for copied external documents, relative to the output "
                       "directory"},
    SettingDescription{htmlGroup, "UseRelative", SettingType::boolean, "true",
                       "Links are relative to the page; otherwise they are absolute file URLs"},
    SettingDescription{htmlGroup, "ShowIcons", SettingType::boolean, "true",
                       "Contents entries carry icons"},
    SettingDescription{htmlGroup, "IconFile", SettingType::text, "",
                       "Archive (zip) with icons of your own for the contents"},
    SettingDescription{htmlGroup, "SupportOld", SettingType::boolean, "false",
                       "Also a static listing of the contents beside the pages, for browsers "
                       "without Java"},
    SettingDescription{htmlGroup, "BodyTags", SettingType::text, "",
                       "Attributes written into every BODY tag"},
    SettingDescription{htmlGroup, "SuppressImageMaps", SettingType::boolean, "false",
                       "Kept for the host; it changes nothing that the driver writes"},
    SettingDescription{htmlGroup, "Navig", SettingType::shortInteger, "1",
                       "1: table of contents, 2: back/next arrows, 3: both; 0 counts as 1"},
    SettingDescription{htmlGroup, "TOCLevel", SettingType::integer, "50",
                       "Deepest heading level that enters the contents (0 to 50)"},
    SettingDescription{htmlGroup, "DontCopy", SettingType::text, "",
                       "Extensions of files that are linked where they lie, never copied "
                       "(\".doc.pdf\")"},
    SettingDescription{htmlGroup, "StyleSheet", SettingType::text, "default.css",
                       "Style sheet of the pages; a bare file name lies in the installation "
                       "directory, an empty text means none",
                       true},
    SettingDescription{htmlGroup, "PassThrough", SettingType::boolean, "false",
                       "\"<<\" in a text is written as \"&lt;&lt;\"; other markup in texts is "
                       "written as it is, on "
                       "or off"},
    SettingDescription{
        htmlGroup, "LocateInBrowser", SettingType::boolean, "true",
        "Locate buttons in the pages, which show a model element in the model browser"},
    SettingDescription{htmlGroup, "ScriptNavigator", SettingType::boolean, "false",
                       "Contents tree and full-text search on every page, for today's browsers; "
                       "needs 1 in \"Navig\""},
    SettingDescription{htmlGroup, "CharSet", SettingType::text, "",
                       "\"UTF-8\": texts and names keep every character; otherwise they are in the "
                       "system's 8-bit code page"},
    SettingDescription{htmlGroup, "DiagramType", SettingType::shortInteger, "0",
                       "Picture type that the host draws diagrams in (0 JPEG, 1 GIF)"},
    SettingDescription{settingsGroup, "InstallDir", SettingType::text, "",
                       "Installation directory: style sheet, arrow pictures and support files"},
    SettingDescription{settingsGroup, "TestLevel", SettingType::integer, "",
                       "Not 0: dates and times in headers and footers are frozen"},
    SettingDescription{
        settingsGroup, "UserFilesDir", SettingType::text, "",
        "Directory of the user's own files; the pictures of the locate buttons lie below it"},
    SettingDescription{settingsGroup, "HelpFile", SettingType::text, "",
                       "Help file of the settings page"},
    SettingDescription{logGroup, "LogName", SettingType::text, "",
                       "File of the call trace; empty: dochtml.log in the temporary directory"},
};

}  // namespace

std::span<const SettingDescription> allSettings() noexcept {
    return settingRows;
}

const SettingDescription* findSetting(std::string_view group, std::string_view name) noexcept {
    const auto* const found =
        std::ranges::find_if(settingRows, [&](const SettingDescription& setting) {
            return ascii::equalIgnoringCase(setting.group, group) &&
                   ascii::equalIgnoringCase(setting.name, name);
        });
    return found == settingRows.end() ? nullptr : &*found;
}

RegEntry defaultValue(const SettingDescription& setting) {
    if (!setting.defaultInInstallDir) {
        return RegEntry::ofString(setting.defaultText);
    }
    const OrxString installDir =
        RegisterDynamic().read(settingsGroup, "InstallDir", RegEntry::ofString("")).asString();
    return RegEntry::ofString(SysFile::appendToDir(installDir, setting.defaultText));
}

RegEntry defaultValue(std::string_view group, std::string_view name) {
    const SettingDescription* const setting = findSetting(group, name);
    return setting == nullptr ? RegEntry::ofString("") : defaultValue(*setting);
}

std::string_view typeName(SettingType type) noexcept {
    switch (type) {
        case SettingType::boolean:
            return "boolean";
        case SettingType::shortInteger:
            return "short";
        case SettingType::integer:
            return "integer";
        case SettingType::text:
            break;
    }
    return "text";
}

}  // namespace quillmark
