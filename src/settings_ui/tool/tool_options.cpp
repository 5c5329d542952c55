#include "settings_ui/tool/tool_options.h"

#include "command_line/bad_usage.h"
#include "command_line/option_parser.h"

namespace quillmark {

namespace {

constexpr const char* usage =
    R"(Usage: dochtml-settings [OPTIONS] COMMAND

Shows and changes the settings of the HTML driver, by the rules of its settings page.

Commands:
  list                  show every setting with its value, default and meaning
  get NAME              show the value of one setting
  set NAME=VALUE...     change settings; "NAME=" sets an empty text
  edit                  ask for the settings of the page one after the other

NAME is the name of a setting or GROUP.NAME (Html.TOCLevel), in any case.
)";

constexpr const char* exitStatus = R"(
Exit status: 0 if all went well; 1 if a value was refused, or the store is damaged or
cannot be written; 2 for bad usage.
)";

/// Lets `parser` write what it finds into `options`.
void addOptions(OptionParser& parser, ToolOptions& options) {
    parser.addOption("--settings", "FILE",
                     "INI file with one section per group (default: the user's own settings)",
                     [&](const std::string& file) { options.settingsFile = file; });
    addDriveOption(parser, options.drives);
    parser.addFlag("-h,--help", "show this help", options.help);
    parser.addFlag("--version", "show the version", options.version);
}

void check(const ToolOptions& options) {
    const std::string& command = options.command;
    const std::size_t count = options.operands.size();
    if (command.empty()) {
        throw BadUsage("no command given");
    }
    if (command == "list" || command == "edit") {
        if (count != 0) {
            throw BadUsage(command + " takes no arguments");
        }
    } else if (command == "get") {
        if (count != 1) {
            throw BadUsage("get takes the name of one setting");
        }
    } else if (command == "set") {
        if (count == 0) {
            throw BadUsage("set takes NAME=VALUE");
        }
    } else {
        throw BadUsage("unknown command " + command);
    }
}

}  // namespace

ToolOptions parseToolOptions(std::span<const std::string> arguments) {
    ToolOptions options;
    OptionParser parser;
    addOptions(parser, options);
    options.operands = parser.parse(arguments);
    if (!options.operands.empty()) {
        options.command = options.operands.front();
        options.operands.erase(options.operands.begin());
    }
    if (!options.help && !options.version) {
        check(options);
    }
    return options;
}

void writeToolHelp(std::ostream& out, const std::string& location) {
    ToolOptions unused;
    OptionParser parser;
    addOptions(parser, unused);
    out << usage << parser.help() << "\nThe settings are kept in " << location << "\n"
        << exitStatus;
}

}  // namespace quillmark
