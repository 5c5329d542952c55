#include "replay/tool/options.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "foundation/ascii.h"
#include "replay/input/bad_input.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

/// What an option does with its value; empty for an option without one.
using Taker = void (*)(Options& options, const std::string& value);

struct Option {
    std::string_view name;
    char letter;
    std::string_view value;
    Taker take;
    std::string_view meaning;
};

void takeSetting(Options& options, const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::size_t dot = text.substr(0, equals).find('.');
    if (equals == std::string::npos || dot == std::string::npos || dot == 0 || dot + 1 == equals) {
        throw BadInput("--set takes GROUP.NAME=VALUE, not \"" + text + "\"");
    }
    options.settings.push_back(
        {text.substr(0, dot), text.substr(dot + 1, equals - dot - 1), text.substr(equals + 1)});
}

void takeInstallDir(Options& options, const std::string& dir) {
    options.settings.push_back({settingsGroup, "InstallDir", dir, true});
}

void takeDrive(Options& options, const std::string& text) {
    const char letter = text.empty() ? '\0' : text.front();
    if (!ascii::isLetter(letter) || text.size() < 3 || text[1] != '=') {
        throw BadInput("--drive takes X=DIR, not \"" + text + "\"");
    }
    options.drives.push_back({letter, text.substr(2)});
}

void takeTraceLevel(Options& options, const std::string& text) {
    std::int16_t level = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), level);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw BadInput("--trace takes an integer from -32768 to 32767, not \"" + text + "\"");
    }
    options.traceLevel = level;
}

constexpr std::array options{
    Option{"output", 'o', "FILE", [](Options& o, const std::string& v) { o.output = v; },
           "takes the place of the file name of the first create"},
    Option{"settings", 0, "FILE", [](Options& o, const std::string& v) { o.settingsFile = v; },
           "the settings store: an INI file, a section a group"},
    Option{"set", 0, "GROUP.NAME=VALUE", takeSetting,
           "one setting for this run, over the store (repeatable)"},
    Option{"install-dir", 0, "DIR", takeInstallDir,
           "where style sheet, pictures and archives are taken from"},
    Option{"ini", 0, "FILE", [](Options& o, const std::string& v) { o.iniFile = v; },
           "the ini file, in place of Veltrano.ini"},
    Option{"model", 0, "FILE", [](Options& o, const std::string& v) { o.modelFile = v; },
           "model metadata for entry icons (JSON)"},
    Option{"image-maps", 0, "FILE", [](Options& o, const std::string& v) { o.imageMapFile = v; },
           "regions of pictures (JSON)"},
    Option{"drive", 0, "X=DIR", takeDrive, "where names that begin with X: lie (repeatable)"},
    Option{"trace", 0, "LEVEL", takeTraceLevel, "calls trace(LEVEL) first"},
    Option{"log", 0, "FILE", [](Options& o, const std::string& v) { o.logFile = v; },
           "the file of the call trace"},
    Option{"exceptions", 0, "FILE", [](Options& o, const std::string& v) { o.exceptionFile = v; },
           "writes the exception log there"},
    Option{"quiet", 'q', "", [](Options& o, const std::string&) { o.quiet = true; },
           "no progress, no summary"},
    Option{"help", 'h', "", [](Options& o, const std::string&) { o.help = true; },
           "shows this and ends"},
    Option{"version", 0, "", [](Options& o, const std::string&) { o.version = true; },
           "shows the version and ends"},
};

/// Walks over the arguments and hands options and their values on.
class ArgumentWalk {
public:
    explicit ArgumentWalk(std::span<const std::string> arguments) : arguments_(arguments) {}

    Options run() {
        while (position_ < arguments_.size()) {
            const std::string& argument = arguments_[position_++];
            if (onlyInputs_ || argument == "-" || !argument.starts_with('-')) {
                result_.inputs.push_back(argument);
            } else if (argument == "--") {
                onlyInputs_ = true;
            } else if (argument.starts_with("--")) {
                takeLong(argument);
            } else {
                takeShort(argument);
            }
        }
        return std::move(result_);
    }

private:
    void takeLong(const std::string& argument) {
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const auto* const option =
            std::ranges::find(options, std::string_view(name).substr(2), &Option::name);
        if (option == options.end()) {
            throw BadInput("unknown option " + name);
        }
        if (equals == std::string::npos) {
            take(*option, name, valueFor(*option, name));
        } else if (option->value.empty()) {
            throw BadInput("option " + name + " takes no value");
        } else {
            take(*option, name, argument.substr(equals + 1));
        }
    }

    void takeShort(const std::string& argument) {
        for (std::size_t i = 1; i < argument.size(); ++i) {
            const auto* const option = std::ranges::find(options, argument[i], &Option::letter);
            const std::string name = {'-', argument[i]};
            if (option == options.end()) {
                throw BadInput("unknown option " + name);
            }
            if (!option->value.empty() && i + 1 < argument.size()) {
                take(*option, name, argument.substr(i + 1));
                return;
            }
            take(*option, name, valueFor(*option, name));
        }
    }

    std::string valueFor(const Option& option, const std::string& name) {
        if (option.value.empty()) {
            return {};
        }
        if (position_ == arguments_.size()) {
            refuseNothing(option, name);
        }
        return arguments_[position_++];
    }

    void take(const Option& option, const std::string& name, const std::string& value) {
        if (value.empty() && (option.value == "FILE" || option.value == "DIR")) {
            refuseNothing(option, name);
        }
        option.take(result_, value);
    }

    [[noreturn]] static void refuseNothing(const Option& option, const std::string& name) {
        throw BadInput("option " + name + " needs a value: " + std::string(option.value));
    }

    std::span<const std::string> arguments_;
    std::size_t position_ = 0;
    bool onlyInputs_ = false;
    Options result_;
};

}  // namespace

Options parseOptions(std::span<const std::string> arguments) {
    Options result = ArgumentWalk(arguments).run();
    if (result.inputs.empty() && !result.help && !result.version) {
        throw BadInput("no calls given; try --help");
    }
    return result;
}

void writeHelp(std::ostream& out) {
    constexpr std::size_t column = 30;
    out << "Usage: dochtml-replay [OPTIONS] CALLS...\n\n"
           "Plays calls of the document interface into the HTML driver: call streams (JSON Lines)\n"
           "and recorded call traces, one after the other; - is standard input.\n\n";
    for (const Option& option : options) {
        std::string line = option.letter != 0 ? std::string("  -") + option.letter + ", --"
                                              : std::string("      --");
        line.append(option.name);
        if (!option.value.empty()) {
            line.append(" ").append(option.value);
        }
        line.append(line.size() < column ? column - line.size() : 1, ' ');
        out << line << option.meaning << '\n';
    }
    out << "\nExit status: 0 all done; 1 something failed on the way; 2 bad usage or bad input.\n";
}

}  // namespace quillmark::replay
