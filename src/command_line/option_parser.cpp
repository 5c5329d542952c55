#include "command_line/option_parser.h"

#include <CLI/CLI.hpp>
#include <map>
#include <utility>

#include "command_line/bad_usage.h"

namespace quillmark {

class OptionParser::Implementation {
public:
    Implementation() {
        app_.set_help_flag();
        // "/name" is a file's name on every system.
        app_.allow_windows_style_options(false);
        formatter_.column_width(helpColumn);
        operands_ = app_.add_option("operands");
        takeLiterally(*operands_);
    }

    void addOption(const std::string& names, const std::string& valueName,
                   const std::string& meaning, ValueHandler handler) {
        CLI::Option* const option = app_.add_option(names, meaning);
        option->type_name(valueName);
        option->expected(1);
        takeLiterally(*option);
        values_[option] = {std::move(handler), valueName};
    }

    void addFlag(const std::string& names, const std::string& meaning, bool& flag) {
        app_.add_flag(names, flag, meaning)->disable_flag_override();
    }

    std::vector<std::string> parse(std::span<const std::string> arguments) {
        refuseEmptyValues(arguments);
        // CLI11 takes operands up to this number and accepts fewer.
        operands_->expected(static_cast<int>(arguments.size()) + 1);
        try {
            app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        } catch (const CLI::ExtrasError&) {
            const std::string first = app_.remaining().front();
            throw BadUsage("unknown option " + first.substr(0, first.find('=')));
        } catch (const CLI::ArgumentMismatch& mismatch) {
            refuse(mismatch.what());
        }
        handleValues();
        return operands_->results();
    }

    [[nodiscard]] std::string help() const {
        return formatter_.make_group("Options", false, optionsToShow());
    }

private:
    /// Separates the names of an option with ", ".
    class HelpFormatter final : public CLI::Formatter {
    public:
        std::string make_option_name(const CLI::Option* option, bool isPositional) const override {
            std::string names = Formatter::make_option_name(option, isPositional);
            if (const std::size_t comma = names.find(','); comma != std::string::npos) {
                names.insert(comma + 1, " ");
            }
            return names;
        }
    };

    struct Value {
        ValueHandler handler;
        std::string name;
    };

    static constexpr std::size_t helpColumn = 30;

    /// Every occurrence counts, and brackets have no meaning of their own.
    static void takeLiterally(CLI::Option& option) {
        option.multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
        option.allow_extra_args(false);
    }

    [[nodiscard]] std::vector<const CLI::Option*> optionsToShow() const {
        return app_.get_options([](const CLI::Option* option) { return option->nonpositional(); });
    }

    [[noreturn]] static void refuseMissing(const CLI::Option& option, const std::string& value) {
        throw BadUsage("option " + option.get_name() + " needs a value: " + value);
    }

    /// CLI11 takes the argument after "--name=" for the value.
    void refuseEmptyValues(std::span<const std::string> arguments) const {
        for (const std::string& argument : arguments) {
            if (argument == "--") {
                return;
            }
            for (const auto& [option, value] : values_) {
                if (argument == option->get_name() + "=") {
                    refuseMissing(*option, value.name);
                }
            }
        }
    }

    /// Turns CLI11's message about a value too few or too many into one of ours. It begins with
    /// the name of the option.
    [[noreturn]] void refuse(const std::string& message) const {
        const std::string name = message.substr(0, message.find_first_of(": "));
        for (const auto& [option, value] : values_) {
            if (option->get_name() == name) {
                refuseMissing(*option, value.name);
            }
        }
        throw BadUsage("option --" + name + " takes no value");
    }

    void handleValues() const {
        std::map<const CLI::Option*, std::size_t> handled;
        for (const CLI::Option* const option : app_.parse_order()) {
            const auto found = values_.find(option);
            if (found == values_.end()) {
                continue;
            }
            const auto& [handler, name] = found->second;
            const std::string& value = option->results().at(handled[option]++);
            if (value.empty() && (name == "FILE" || name == "DIR")) {
                refuseMissing(*option, name);
            }
            handler(value);
        }
    }

    CLI::App app_;
    HelpFormatter formatter_;
    CLI::Option* operands_ = nullptr;
    std::map<const CLI::Option*, Value> values_;
};

OptionParser::OptionParser() : implementation_(std::make_unique<Implementation>()) {}

OptionParser::~OptionParser() = default;

void OptionParser::addOption(const std::string& names, const std::string& valueName,
                             const std::string& meaning, ValueHandler handler) {
    implementation_->addOption(names, valueName, meaning, std::move(handler));
}

void OptionParser::addFlag(const std::string& names, const std::string& meaning, bool& flag) {
    implementation_->addFlag(names, meaning, flag);
}

std::vector<std::string> OptionParser::parse(std::span<const std::string> arguments) {
    return implementation_->parse(arguments);
}

std::string OptionParser::help() const {
    return implementation_->help();
}

}  // namespace quillmark
