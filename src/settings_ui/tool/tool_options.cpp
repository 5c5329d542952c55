#include "settings_ui/tool/tool_options.h"

#include <string_view>

#include "foundation/ascii.h"

namespace quillmark {

namespace {

constexpr std::string_view helpText =
    R"(Usage: dochtml-settings [OPTIONS] COMMAND

Shows and changes the settings of the HTML driver, by the rules of its settings page.

Commands:
  list                  every setting with its value, default and meaning
  get NAME              the value of one setting
  set NAME=VALUE...     changes settings; NAME=, with nothing behind it, empties a text
  edit                  asks for the settings of the page one after the other

NAME is a setting's name or GROUP.NAME (Html.TOCLevel), in any case.

Options:
  --settings FILE       the settings store: an INI file, a section a group
                        (default: the user's own store, the one that the driver reads)
  --drive X=DIR         where names that begin with X: lie, on systems without drives
                        (repeatable)
  --help                shows this and ends
  --version             shows the version and ends

Exit status: 0 done; 1 a value was refused, or the store is damaged or cannot be written;
2 bad usage.
)";

std::pair<char, std::string> driveOf(const std::string& text) {
    if (text.size() < 3 || !ascii::isLetter(text[0]) || text[1] != '=') {
        throw BadUsage("--drive takes X=DIR, not \"" + text + "\"");
    }
    return {text[0], text.substr(2)};
}

/// Walks over the arguments; options may stand anywhere in front of "--".
class ArgumentWalk {
public:
    explicit ArgumentWalk(std::span<const std::string> arguments) : arguments_(arguments) {}

    ToolOptions run() {
        bool onlyOperands = false;
        while (next_ < arguments_.size()) {
            const std::string& argument = arguments_[next_++];
            if (!onlyOperands && argument == "--") {
                onlyOperands = true;
            } else if (!onlyOperands && argument.size() > 1 && argument.starts_with('-')) {
                takeOption(argument);
            } else if (result_.command.empty()) {
                result_.command = argument;
            } else {
                result_.operands.push_back(argument);
            }
        }
        return std::move(result_);
    }

private:
    void takeOption(const std::string& argument) {
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (name == "--settings") {
            result_.settingsFile = valueOf(argument, equals);
        } else if (name == "--drive") {
            result_.drives.push_back(driveOf(valueOf(argument, equals)));
        } else if (argument == "--help" || argument == "-h") {
            result_.help = true;
        } else if (argument == "--version") {
            result_.version = true;
        } else {
            throw BadUsage("unknown option " + argument);
        }
    }

    std::string valueOf(const std::string& argument, std::size_t equals) {
        if (equals != std::string::npos) {
            return argument.substr(equals + 1);
        }
        if (next_ == arguments_.size()) {
            throw BadUsage("option " + argument + " needs a value");
        }
        return arguments_[next_++];
    }

    std::span<const std::string> arguments_;
    std::size_t next_ = 0;
    ToolOptions result_;
};

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
    ToolOptions options = ArgumentWalk(arguments).run();
    if (!options.help && !options.version) {
        check(options);
    }
    return options;
}

void writeToolHelp(std::ostream& out) {
    out << helpText;
}

}  // namespace quillmark
