#include "replay/tool/tool.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "foundation/utf8.h"
#include "platform/drive_table.h"
#include "platform/sys_text.h"
#include "replay/input/bad_input.h"
#include "replay/input/inputs.h"
#include "replay/play/player.h"
#include "replay/services/drives_in_force.h"
#include "replay/services/registered_services.h"
#include "replay/services/run_services.h"
#include "replay/tool/messages.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view toolName = "dochtml-replay";

/// One run over all inputs.
class Run {
public:
    Run(const Options& options, const Surroundings& around)
        : options_(options),
          around_(around),
          files_(options.drives),
          drives_(files_.allDrives()),
          inputs_(options.inputs, around.input),
          services_(options, files_, around.executable),
          messages_(around.errors, around.errorsGoToTerminal && !options.quiet),
          trace_(inputs_.hasRecording()),
          exceptions_([this](std::string_view reason) { tellError(SysText::toUtf8(reason)); },
                      exceptionWriter()) {}

    int play() {
        makeLogDirectory();
        warnOfUnknownSettings();
        {
            const RegisteredServices registered(hostServices());
            const std::shared_ptr<void> lent =
                around_.lendServices ? around_.lendServices(hostServices()) : nullptr;
            Player player(playerSettings(), listeners(), trace_, exceptions_);
            for (const Inputs::Input& input : inputs_.all()) {
                if (!playInput(player, input)) {
                    badInput_ = true;
                    break;
                }
            }
            player.finish();
            charactersLost_ = player.charactersLost();
        }
        messages_.clearProgress();
        checkOutput();
        if (!options_.quiet) {
            tellSummary();
        }
        return badInput_ ? exitBadInput : errors_ > 0 ? exitFailed : exitDone;
    }

private:
    bool playInput(Player& player, const Inputs::Input& input) {
        const std::unique_ptr<CallSource> source = makeSource(input);
        current_ = &input;
        if (source == nullptr || player.play(*source)) {
            return true;
        }
        tellPlace(source->line(), source->problem());
        return false;
    }

    HostServices hostServices() {
        HostServices services = services_.services();
        services.traceListener = &trace_;
        services.exceptionLog = &exceptions_;
        services.observer = &counts_;
        return services;
    }

    Player::Settings playerSettings() {
        Player::Settings settings;
        settings.makeDocument = around_.makeDocument;
        settings.startDirectory = driverPath(utf8Path(startDirectory()));
        settings.traceLevel = options_.traceLevel;
        if (options_.output) {
            settings.outputName = files_.driver(*options_.output);
        }
        return settings;
    }

    Player::Listeners listeners() {
        return {[this](WideText answer) {
                    around_.output << utf8::fromUtf16(answer) << '\n' << std::flush;
                },
                [this](std::size_t line, const std::string& how) {
                    ++errors_;
                    tellPlace(line, "replay diverged: " + how);
                },
                [this](std::size_t line, const std::string& why) {
                    ++errors_;
                    tellPlace(line, why);
                },
                [this](std::size_t calls) {
                    constexpr std::size_t oftenEnough = 1024;
                    if (calls % oftenEnough == 0) {
                        messages_.progress(calls, counts_.pages);
                    }
                }};
    }

    HeardExceptions::Teller exceptionWriter() {
        if (!options_.exceptionFile) {
            return {};
        }
        exceptionFile_.emplace(files_.native(*options_.exceptionFile));
        return [this](std::string_view message) {
            if (!exceptionFile_->write(message)) {
                tellError("cannot write " + *options_.exceptionFile);
            }
        };
    }

    /// The log itself is made when its first line comes; the driver tells when it cannot be.
    void makeLogDirectory() {
        if (options_.logFile) {
            std::error_code failure;
            std::filesystem::create_directories(files_.native(*options_.logFile).parent_path(),
                                                failure);
        }
    }

    /// Most likely a name that is spelled wrong. It does no harm, so the run goes on.
    void warnOfUnknownSettings() {
        for (const Options::Setting& setting : options_.settings) {
            if (!options_.quiet && findSetting(setting.group, setting.name) == nullptr) {
                messages_.tell(std::string(toolName) + ": warning: there is no setting " +
                               setting.group + "." + setting.name);
            }
        }
    }

    void checkOutput() {
        if (!around_.output.flush()) {
            tellError("cannot write the output");
        }
    }

    /// A message about a line of the input that is played.
    void tellPlace(std::size_t line, const std::string& what) {
        messages_.tell(current_->name + ":" + std::to_string(line) + ": " + what);
    }

    void tellError(const std::string& what) {
        ++errors_;
        messages_.tell(std::string(toolName) + ": " + what);
    }

    void tellSummary() {
        std::string text = counted(counts_.pages, "page") + " written, " +
                           counted(counts_.contentsEntries, "contents entry", "contents entries") +
                           ", " + counted(counts_.files, "file") + " copied, " +
                           counted(counts_.unresolved, "unresolved reference") + ", " +
                           counted(errors_, "error");
        if (trace_.warnings() > 0) {
            text += ", " + counted(trace_.warnings(), "warning");
        }
        if (charactersLost_ > 0) {
            text += ", " + counted(charactersLost_, "character") + " lost";
        }
        messages_.tell(std::string(toolName) + ": " + text);
    }

    const Options& options_;
    const Surroundings& around_;
    OptionFiles files_;
    /// In force before the settings store, which may lie on one of them, is read.
    DrivesInForce drives_;
    Inputs inputs_;
    RunServices services_;
    Messages messages_;
    std::optional<LateFile> exceptionFile_;
    HeardTrace trace_;
    HeardExceptions exceptions_;
    RunCounts counts_;
    const Inputs::Input* current_ = nullptr;
    std::size_t errors_ = 0;
    std::size_t charactersLost_ = 0;
    bool badInput_ = false;
};

}  // namespace

int runTool(std::span<const std::string> arguments, const Surroundings& around) {
    try {
        const Options options = parseOptions(arguments);
        if (!options.help && !options.version) {
            return Run(options, around).play();
        }
        if (options.help) {
            writeHelp(around.output);
        } else {
            around.output << toolName << ' ' << DOCHTML_VERSION << '\n';
        }
        if (!around.output.flush()) {
            Messages(around.errors, false)
                .tell(std::string(toolName) + ": cannot write the output");
            return exitFailed;
        }
        return exitDone;
    } catch (const std::exception& failure) {
        Messages(around.errors, false).tell(std::string(toolName) + ": " + failure.what());
        return exitBadInput;
    }
}

}  // namespace quillmark::replay
