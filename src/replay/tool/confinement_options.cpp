#include "replay/tool/confinement_options.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "command_line/utf8_path.h"
#include "platform/files/drive_table.h"
#include "platform/system_facts.h"
#include "replay/input/bad_input.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

std::string outputDirectory(const Options& options, const OptionFiles& files) {
    const std::filesystem::path directory =
        options.output ? files.native(*options.output).parent_path() : startDirectory();
    std::error_code failure;
    std::filesystem::create_directories(directory, failure);
    if (!std::filesystem::is_directory(directory, failure)) {
        throw BadInput("cannot create the output directory " + utf8Path(directory));
    }
    return utf8Path(directory);
}

std::string namedDirectory(const std::string& name, const OptionFiles& files) {
    const std::filesystem::path directory = files.native(name);
    std::error_code failure;
    if (!std::filesystem::is_directory(directory, failure)) {
        throw BadInput("--allow-read: there is no directory " + name);
    }
    return utf8Path(directory);
}

/// A file or directory that the user's settings name. A relative name depends on the current
/// directory, which the calls change, so it gives no right to read.
void addSetting(std::vector<std::string>& names, const SettingsStore& settings,
                std::string_view group, std::string_view name) {
    const std::string file = nativePath(settings.read(group, name).value_or(OrxString()));
    if (std::filesystem::path(file).is_absolute()) {
        names.push_back(file);
    }
}

}  // namespace

FilesInReach filesInReach(const Options& options, const OptionFiles& files,
                          const SettingsStore& settings) {
    FilesInReach reach;
    reach.writable.push_back(outputDirectory(options, files));
    if (options.logFile) {
        reach.writable.push_back(utf8Path(files.native(*options.logFile)));
    }
    for (const std::string& name : options.allowRead) {
        reach.readable.push_back(namedDirectory(name, files));
    }
    for (const char* const name : {"InstallDir", "UserFilesDir"}) {
        addSetting(reach.readable, settings, settingsGroup, name);
    }
    for (const char* const name : {"StyleSheet", "IconFile"}) {
        addSetting(reach.readable, settings, htmlGroup, name);
    }
    const std::string ini =
        nativePath(system_facts::userConfigurationDirectory()) + "/Veltrano.ini";
    reach.readable.push_back(options.iniFile ? utf8Path(files.native(*options.iniFile)) : ini);
    return reach;
}

}  // namespace quillmark::replay
