#include "replay/services/run_services.h"

#include <system_error>

#include "platform/drive_table.h"
#include "platform/sys_text.h"
#include "replay/input/bad_input.h"
#include "replay/services/run_settings.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

/// The installed support files lie beside the program's directory, in a build tree too.
std::filesystem::path supportFiles(const std::string& executable) {
    return (pathFrom(executable).parent_path() / "../share/dochtml").lexically_normal();
}

std::shared_ptr<SettingsStore> openStore(const Options& options, const OptionFiles& files) {
    std::shared_ptr<SettingsStore> store;
    if (options.settingsFile) {
        // A pipe could be read only once, and settings are read when they are asked for.
        const std::filesystem::path file = files.native(*options.settingsFile);
        if (!std::filesystem::exists(file) || std::filesystem::is_directory(file) ||
            std::filesystem::is_fifo(file)) {
            throw BadInput("cannot read " + *options.settingsFile);
        }
        store = makeIniSettingsStore(files.driver(*options.settingsFile));
    } else {
        store = makeUserSettingsStore();
    }
    if (const OrxString problem = store->problem(); !problem.isEmpty()) {
        throw BadInput(SysText::toUtf8(problem));
    }
    return store;
}

std::shared_ptr<RunSettings> makeSettings(const Options& options, const OptionFiles& files,
                                          const std::string& executable) {
    auto settings = std::make_shared<RunSettings>(openStore(options, files));
    const std::filesystem::path support = supportFiles(executable);
    if (std::filesystem::is_directory(support)) {
        settings->supply(settingsGroup, "InstallDir", driverPath(utf8Path(support)));
    }
    for (const Options::Setting& setting : options.settings) {
        settings->set(
            SysText::fromUtf8(setting.group), SysText::fromUtf8(setting.name),
            setting.isFileName ? files.driver(setting.value) : SysText::fromUtf8(setting.value));
    }
    if (options.logFile) {
        settings->set(logGroup, "LogName", files.driver(*options.logFile));
    }
    return settings;
}

}  // namespace

RunServices::RunServices(const Options& options, const OptionFiles& files,
                         const std::string& executable) {
    services_.settings = makeSettings(options, files, executable);
    services_.drives = files.allDrives();
    if (options.iniFile) {
        services_.profilePath = files.driver(*options.iniFile);
    }
    if (options.modelFile) {
        model_.emplace(files.native(*options.modelFile), *options.modelFile);
        services_.model = &*model_;
        services_.schemaType = model_->schemaType();
    }
    if (options.imageMapFile) {
        imageMaps_.emplace(files.native(*options.imageMapFile), *options.imageMapFile);
        services_.imageMaps = &*imageMaps_;
    }
}

bool LateFile::write(std::string_view text) {
    if (!file_.is_open() && !told_) {
        std::error_code failure;
        std::filesystem::create_directories(name_.parent_path(), failure);
        file_.open(name_, std::ios::binary | std::ios::trunc);
    }
    file_ << text << std::flush;
    const bool failsNow = !file_ && !told_;
    told_ = told_ || failsNow;
    return !failsNow;
}

}  // namespace quillmark::replay
