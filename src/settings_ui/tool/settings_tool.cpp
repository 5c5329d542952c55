#include "settings_ui/tool/settings_tool.h"

#include <memory>
#include <utility>

#include "command_line/bad_usage.h"
#include "command_line/default_install_dir.h"
#include "command_line/program.h"
#include "command_line/scoped_drives.h"
#include "platform/files/drive_table.h"
#include "platform/text_encoding.h"
#include "settings/register_base.h"
#include "settings_ui/tool/settings_commands.h"

namespace quillmark {

namespace {

/// Makes a store the current one for as long as it lives.
class ScopedSettingsStore {
public:
    explicit ScopedSettingsStore(std::shared_ptr<SettingsStore> store)
        : before_(RegisterBase::store()) {
        RegisterBase::setStore(std::move(store));
    }
    ScopedSettingsStore(const ScopedSettingsStore&) = delete;
    ScopedSettingsStore& operator=(const ScopedSettingsStore&) = delete;
    ~ScopedSettingsStore() { RegisterBase::setStore(before_); }

private:
    std::shared_ptr<SettingsStore> before_;
};

void report(std::ostream& errors, const std::string& line) {
    errors << "dochtml-settings: " << line << "\n";
}

/// The location of the store, for the user.
std::string placeOf(const ToolOptions& options) {
    return options.settingsFile ? *options.settingsFile : userSettingsLocation().str();
}

ToolStatus runCommand(const ToolOptions& options, const SettingsToolEnvironment& environment) {
    const auto defaults = std::make_shared<DefaultInstallDir>(
        options.settingsFile ? makeIniSettingsStore(driverPath(*options.settingsFile))
                             : makeUserSettingsStore(),
        environment.executable);
    const auto store = std::make_shared<FailureRecordingStore>(defaults);
    const ScopedSettingsStore current(store);
    // A damaged store is not touched: a write could lose what it contains.
    if (const OrxString problem = store->problem(); !problem.isEmpty()) {
        report(environment.errors, problem.str());
        return ToolStatus::failed;
    }
    const std::string place = placeOf(options);
    const bool accepted =
        SettingsCommands(*store, defaults->directory(), place, environment).run(options);
    for (const auto& [setting, reason] : store->failures()) {
        report(environment.errors, "cannot write " + setting.str() + " to " + place +
                                       (reason.empty() ? "" : ": " + reason));
    }
    const bool kept = store->failures().empty();
    return accepted && kept ? ToolStatus::done : ToolStatus::failed;
}

ToolStatus run(std::span<const std::string> arguments, const SettingsToolEnvironment& environment) {
    const ToolOptions options = parseToolOptions(arguments);
    if (options.help) {
        writeToolHelp(environment.out, placeOf(options));
        return ToolStatus::done;
    }
    if (options.version) {
        environment.out << "dochtml-settings " DOCHTML_VERSION "\n";
        return ToolStatus::done;
    }
    const ScopedDrives drives(options.drives);
    return runCommand(options, environment);
}

}  // namespace

ToolStatus runSettingsTool(std::span<const std::string> arguments,
                           const SettingsToolEnvironment& environment) {
    // Command lines, terminals and settings are in UTF-8.
    const TextEncoding::Scope scope(TextEncoding::utf8());
    ToolStatus status = ToolStatus::badUsage;
    try {
        status = run(arguments, environment);
    } catch (const BadUsage& usage) {
        report(environment.errors, usage.what());
        environment.errors << "Try dochtml-settings --help.\n";
    }
    if (const std::string problem = outputProblem(environment.out); !problem.empty()) {
        report(environment.errors, problem);
        return ToolStatus::failed;
    }
    return environment.errors ? status : ToolStatus::failed;
}

}  // namespace quillmark
