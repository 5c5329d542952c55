#include "settings_ui/tool/settings_commands.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "command_line/bad_usage.h"
#include "settings/register_dynamic.h"
#include "settings/settings_table.h"
#include "settings_ui/settings_page.h"
#include "settings_ui/tool/control_values.h"
#include "settings_ui/tool/terminal_form.h"
#include "settings_ui/tool/terminal_host.h"

namespace quillmark {

namespace {

/// The setting called "NAME" or "GROUP.NAME". No name occurs in two groups.
const SettingDescription& settingNamed(const std::string& text) {
    const std::size_t dot = text.find('.');
    for (const SettingDescription& setting : allSettings()) {
        const std::string_view group =
            dot == std::string::npos ? setting.group : std::string_view(text).substr(0, dot);
        const std::string_view name =
            dot == std::string::npos ? text : std::string_view(text).substr(dot + 1);
        if (findSetting(group, name) == &setting) {
            return setting;
        }
    }
    throw BadUsage("unknown setting \"" + text + "\"");
}

std::string address(const SettingDescription& setting) {
    return std::string(setting.group) + "." + setting.name;
}

OrxString valueOf(const SettingDescription& setting) {
    return RegisterDynamic().read(setting.group, setting.name, defaultValue(setting)).asString();
}

struct Assignment {
    const SettingDescription* setting;
    OrxString value;
};

Assignment assignmentOf(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        throw BadUsage("set takes NAME=VALUE, not \"" + text + "\"");
    }
    const SettingDescription& setting = settingNamed(text.substr(0, equals));
    const std::string given = text.substr(equals + 1);
    if (!canBeStored(given)) {
        throw BadUsage(notStorable(given));
    }
    if (given.find_first_of("\r\n") != std::string::npos) {
        throw BadUsage(address(setting) + " must be a single line");
    }
    const OrxString value = given;
    if (!accepts(setting, value)) {
        throw BadUsage(address(setting) + " takes " + acceptedValues(setting).str() + ", not \"" +
                       text.substr(equals + 1) + "\"");
    }
    return {&setting, value};
}

/// The page without a window, loaded from the current store.
struct LoadedPage {
    explicit LoadedPage(std::ostream& errors) : host(errors), page(controls, host) {
        controls.listen([this](int id, ControlEvent event) { page.handle(id, event); });
        controls.focus(control::imagesDirectory);
    }
    LoadedPage(const LoadedPage&) = delete;
    LoadedPage& operator=(const LoadedPage&) = delete;
    ~LoadedPage() = default;

    MemoryControls controls;
    TerminalHost host;
    SettingsPage page;
};

/// Writes the settings that are not on the page, in the order of the table. No rules apply to them.
void writeOthers(const std::vector<Assignment>& assignments) {
    for (const SettingDescription& setting : allSettings()) {
        for (const Assignment& assignment : assignments) {
            if (assignment.setting == &setting && !isOnPage(setting)) {
                RegisterDynamic().write(setting.group, setting.name,
                                        storedForm(setting, assignment.value));
            }
        }
    }
}

}  // namespace

bool SettingsCommands::run(const ToolOptions& options) {
    if (options.command == "set") {
        return set(options.operands);
    }
    if (options.command == "edit") {
        return edit();
    }
    if (options.command == "get") {
        get(options.operands.front());
    } else {
        list();
    }
    return true;
}

void SettingsCommands::list() const {
    environment_.out << "Kept in " << location_ << "\n";
    for (const SettingDescription& setting : allSettings()) {
        OrxString fallback = defaultValue(setting).asString();
        if (&setting == findSetting(settingsGroup, "InstallDir")) {
            fallback = installDir_;
        }
        environment_.out << address(setting) << "=" << valueOf(setting) << "\n    default \""
                         << fallback << "\", " << typeName(setting.type) << "\n    "
                         << setting.meaning << "\n";
    }
}

void SettingsCommands::get(const std::string& name) const {
    environment_.out << valueOf(settingNamed(name)) << "\n";
}

bool SettingsCommands::set(const std::vector<std::string>& assignments) const {
    std::vector<Assignment> wanted;
    std::ranges::transform(assignments, std::back_inserter(wanted), assignmentOf);
    LoadedPage loaded(environment_.errors);
    std::vector<std::string_view> onPage;
    for (const auto& [setting, value] : wanted) {
        if (isOnPage(*setting)) {
            putValue(loaded.controls, *setting, value);
            onPage.emplace_back(setting->name);
        }
    }
    if (!loaded.page.applyOnly(onPage)) {
        return false;
    }
    writeOthers(wanted);
    return true;
}

bool SettingsCommands::edit() const {
    LoadedPage loaded(environment_.errors);
    const std::unique_ptr<AnswerSource> answers = answerSource();
    TerminalForm form(loaded.controls, *answers, environment_.out, [&](std::string_view setting) {
        return loaded.page.accepts({&setting, 1});
    });
    environment_.out << "HTML Settings. Ctrl+C cancels: nothing is saved before the last answer.\n"
                     << "Kept in " << location_
                     << "\nEnter keeps a value, \"\" empties it, the end of the input keeps the "
                        "rest.\n\n";
    if (!form.fillIn()) {
        environment_.errors
            << "The input ended after an answer that was refused. Nothing changed.\n";
        return false;
    }
    const std::vector<std::string_view> changed = form.changedSettings();
    if (changed.empty()) {
        environment_.out << "\nNothing changed.\n";
        return true;
    }
    // Everything else stays as it is in the store: a default must not become a stored value.
    if (!loaded.page.applyOnly(changed)) {
        return false;
    }
    if (store_.failures().empty()) {
        environment_.out << "Saved.\n";
    }
    return true;
}

std::unique_ptr<AnswerSource> SettingsCommands::answerSource() const {
    std::unique_ptr<AnswerSource> terminal =
        environment_.makeTerminal ? environment_.makeTerminal() : nullptr;
    return terminal != nullptr ? std::move(terminal)
                               : std::make_unique<StreamAnswers>(environment_.in, environment_.out);
}

}  // namespace quillmark
