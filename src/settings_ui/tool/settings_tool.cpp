#include "settings_ui/tool/settings_tool.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "platform/drive_table.h"
#include "platform/sys_text.h"
#include "settings/register_base.h"
#include "settings_ui/tool/settings_commands.h"

namespace quillmark {

namespace {

/// Puts a store in force for as long as the tool runs.
class StoreInForce {
public:
    explicit StoreInForce(std::shared_ptr<SettingsStore> store) : before_(RegisterBase::store()) {
        RegisterBase::setStore(std::move(store));
    }
    StoreInForce(const StoreInForce&) = delete;
    StoreInForce& operator=(const StoreInForce&) = delete;
    ~StoreInForce() { RegisterBase::setStore(before_); }

private:
    std::shared_ptr<SettingsStore> before_;
};

std::filesystem::path pathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

/// The installed support files lie beside the program's directory, in a build tree too.
OrxString supportFiles(const std::string& executable) {
    const std::filesystem::path found =
        (pathOf(executable).parent_path() / "../share/dochtml").lexically_normal();
    std::error_code ignored;
    if (!std::filesystem::is_directory(found, ignored)) {
        return {};
    }
    const std::u8string name = found.u8string();
    return driverPath(std::string(name.begin(), name.end()));
}

void tell(std::ostream& errors, const std::string& line) {
    errors << "dochtml-settings: " << line << "\n";
}

ToolStatus runCommand(const ToolOptions& options, const ToolSurroundings& around) {
    const auto store = std::make_shared<WatchedStore>(
        options.settingsFile ? makeIniSettingsStore(driverPath(*options.settingsFile))
                             : makeUserSettingsStore(),
        supportFiles(around.executable));
    const StoreInForce inForce(store);
    // A damaged store is left as it is: what it means is not known, and a write could lose it.
    if (const OrxString problem = store->problem(); !problem.isEmpty()) {
        tell(around.errors, SysText::toUtf8(problem));
        return ToolStatus::failed;
    }
    const std::string place =
        options.settingsFile ? *options.settingsFile : SysText::toUtf8(userSettingsLocation());
    const bool accepted = SettingsCommands(*store, place, around).run(options);
    for (const OrxString& name : store->failures()) {
        tell(around.errors, "cannot write " + SysText::toUtf8(name) + " to " + place);
    }
    const bool kept = store->failures().empty();
    return accepted && kept ? ToolStatus::done : ToolStatus::failed;
}

ToolStatus run(std::span<const std::string> arguments, const ToolSurroundings& around) {
    const ToolOptions options = parseToolOptions(arguments);
    if (options.help) {
        writeToolHelp(around.out);
        return ToolStatus::done;
    }
    if (options.version) {
        around.out << "dochtml-settings " DOCHTML_VERSION "\n";
        return ToolStatus::done;
    }
    for (const auto& [letter, directory] : options.drives) {
        DriveTable::set(letter, directory);
    }
    return runCommand(options, around);
}

}  // namespace

ToolStatus runSettingsTool(std::span<const std::string> arguments, const ToolSurroundings& around) {
    ToolStatus status = ToolStatus::badUsage;
    try {
        status = run(arguments, around);
    } catch (const BadUsage& usage) {
        tell(around.errors, usage.what());
        around.errors << "Try dochtml-settings --help.\n";
    }
    around.out.flush();
    if (!around.out) {
        tell(around.errors, "cannot write the output");
        return ToolStatus::failed;
    }
    return status;
}

}  // namespace quillmark
