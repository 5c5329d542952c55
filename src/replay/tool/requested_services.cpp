#include "replay/tool/requested_services.h"

#include "command_line/default_install_dir.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/host_file.h"
#include "replay/play/document_encoding.h"
#include "replay/services/settings_overlay.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

std::shared_ptr<SettingsStore> openStore(const Options& options, const OptionFiles& files) {
    std::shared_ptr<SettingsStore> store;
    if (options.settingsFile) {
        // A pipe can be read only once, but settings are read whenever they are needed.
        checkRegularFile(files.native(*options.settingsFile), *options.settingsFile);
        store = makeIniSettingsStore(files.driver(*options.settingsFile));
    } else {
        store = makeUserSettingsStore();
    }
    if (const OrxString problem = store->problem(); !problem.isEmpty()) {
        throw BadInput(problem.str());
    }
    return store;
}

std::shared_ptr<SettingsOverlay> makeSettings(const Options& options, const OptionFiles& files,
                                              const std::string& executable) {
    auto settings = std::make_shared<SettingsOverlay>(
        std::make_shared<DefaultInstallDir>(openStore(options, files), executable));
    for (const Options::Setting& setting : options.settings) {
        settings->set(setting.group, setting.name,
                      setting.isFileName ? files.driver(setting.value) : OrxString(setting.value));
    }
    if (options.logFile) {
        settings->set(logGroup, "LogName", files.driver(*options.logFile));
    }
    return settings;
}

}  // namespace

RequestedServices::RequestedServices(const Options& options, const OptionFiles& files,
                                     const std::string& executable) {
    services_.settings = makeSettings(options, files, executable);
    encoding_ = &DocumentEncoding(services_.settings).next();
    for (const Options::Setting& setting : options.settings) {
        if (setting.isFileName) {
            checkFileName(files.driver(setting.value), *encoding_);
        }
    }
    if (options.logFile) {
        checkFileName(files.driver(*options.logFile), *encoding_);
    }
    services_.drives = files.allDrives();
    if (options.iniFile) {
        const OrxString name = files.driver(*options.iniFile);
        checkFileName(name, *encoding_);
        services_.profilePath = encoding_->fromUtf8(name);
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

}  // namespace quillmark::replay
