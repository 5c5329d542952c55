#include "replay/tool/tool.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

#include "command_line/scoped_drives.h"
#include "command_line/utf8_path.h"
#include "foundation/utf8.h"
#include "platform/drive_table.h"
#include "platform/sys_text.h"
#include "replay/input/bad_input.h"
#include "replay/input/inputs.h"
#include "replay/play/document_counts.h"
#include "replay/play/player.h"
#include "replay/services/callback_guard.h"
#include "replay/tool/confinement_options.h"
#include "replay/tool/lazy_file.h"
#include "replay/tool/messages.h"
#include "replay/tool/requested_services.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view toolName = "dochtml-replay";
constexpr std::string_view outOfMemory = "dochtml-replay: out of memory";

/// Without memory for its message, an exception is one more of having no memory.
int reportFailure(std::ostream& errors, const std::exception& failure) {
    try {
        Messages(errors, false).write(std::string(toolName) + ": " + failure.what());
        return exitBadInput;
    } catch (const std::bad_alloc&) {
        Messages(errors, false).write(outOfMemory);
        return exitFailed;
    }
}

/// One run of the tool over all its inputs.
class Run {
public:
    Run(const Options& options, const ReplayEnvironment& environment)
        : options_(options),
          environment_(environment),
          files_(options.drives),
          drives_(files_.allDrives()),
          inputs_(options.inputs, environment.input),
          services_(options, files_, environment.executable),
          messages_(environment.errors, environment.errorsGoToTerminal && !options.quiet),
          trace_(inputs_.hasRecording()),
          exceptions_(
              [this](std::string_view reason) {
                  ++errors_;
                  write(SysText::toUtf8(reason));
              },
              exceptionWriter()) {}

    int play() {
        makeLogDirectory();
        warnOfUnknownSettings();
        {
            const std::shared_ptr<void> provided = environment_.provideServices(hostServices());
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
        if (const std::size_t failed = failedCallbacks - failedBefore_; failed > 0) {
            errors_ += failed;
            messages_.write(outOfMemory);
        }
        checkOutput();
        if (!options_.quiet) {
            writeSummary();
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
        reportAt(source->line(), source->problem());
        return false;
    }

    HostServices hostServices() {
        HostServices services = services_.services();
        services.traceListener = &trace_;
        services.exceptionLog = &exceptions_;
        services.observer = &counts_;
        if (options_.confine) {
            services.filesInReach = filesInReach(options_, files_, *services.settings);
            services.filesInReach->refused = [this](const std::string& what) {
                reportError("--confine: refused to " + what);
            };
        }
        return services;
    }

    Player::Settings playerSettings() {
        Player::Settings settings;
        settings.makeDocument = environment_.makeDocument;
        settings.startDirectory = driverPath(utf8Path(startDirectory()));
        settings.traceLevel = options_.traceLevel;
        if (options_.output) {
            settings.outputName = files_.driver(*options_.output);
        }
        return settings;
    }

    Player::Listeners listeners() {
        return {[this](WideText answer) {
                    environment_.output << utf8::fromUtf16(answer) << '\n' << std::flush;
                },
                [this](std::size_t line, const std::string& how) {
                    ++errors_;
                    reportAt(line, "replay diverged: " + how);
                },
                [this](std::size_t line, const std::string& why) {
                    ++errors_;
                    reportAt(line, why);
                },
                [this](std::size_t calls) {
                    constexpr std::size_t interval = 1024;
                    if (calls % interval == 0) {
                        messages_.progress(calls, counts_.pages);
                    }
                }};
    }

    ExceptionMonitor::Handler exceptionWriter() {
        if (!options_.exceptionFile) {
            return {};
        }
        exceptionFile_.emplace(files_.native(*options_.exceptionFile));
        return [this](std::string_view message) {
            if (!exceptionFile_->write(message)) {
                reportError("cannot write " + *options_.exceptionFile);
            }
        };
    }

    /// The driver creates the log file itself, and reports it if that fails.
    void makeLogDirectory() {
        if (options_.logFile) {
            std::error_code failure;
            std::filesystem::create_directories(files_.native(*options_.logFile).parent_path(),
                                                failure);
        }
    }

    /// An unknown setting is most likely misspelled. It does no harm, so the run continues.
    void warnOfUnknownSettings() {
        for (const Options::Setting& setting : options_.settings) {
            if (!options_.quiet && findSetting(setting.group, setting.name) == nullptr) {
                messages_.write(std::string(toolName) + ": warning: there is no setting " +
                                setting.group + "." + setting.name);
            }
        }
    }

    void checkOutput() {
        if (!environment_.output.flush()) {
            reportError("cannot write the output");
        }
    }

    /// Reports a problem in a line of the current input.
    void reportAt(std::size_t line, const std::string& what) {
        messages_.write(current_->name + ":" + std::to_string(line) + ": " + what);
    }

    void reportError(const std::string& what) {
        ++errors_;
        write(what);
    }

    void write(const std::string& what) { messages_.write(std::string(toolName) + ": " + what); }

    void writeSummary() {
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
        messages_.write(std::string(toolName) + ": " + text);
        writeOpeningPage();
    }

    void writeOpeningPage() {
        const auto opening = counts_.opening.answer();
        if (!opening.has_value()) {
            return;
        }
        const std::string page = shownPath(opening->page);
        messages_.write(std::string(toolName) + ": " +
                        (opening->needsJava
                             ? page + " needs a browser with Java. For today's browsers add --set "
                                      "Html.ScriptNavigator=true"
                             : "open " + page));
    }

    /// Relative to the directory where the tool was started, if the file is below it.
    [[nodiscard]] std::string shownPath(const OrxString& driverName) const {
        std::string name = SysText::toUtf8(driverName);
        std::replace(name.begin(), name.end(), '\\', '/');
        const std::filesystem::path path = files_.native(name);
        const std::string fromStart = utf8Path(path.lexically_relative(start_).generic_u8string());
        const bool isBelow = !fromStart.empty() && !fromStart.starts_with("..");
        return isBelow ? fromStart : utf8Path(path);
    }

    const Options& options_;
    const ReplayEnvironment& environment_;
    /// The driver changes the current directory.
    std::filesystem::path start_ = startDirectory();
    OptionFiles files_;
    /// Declared before `services_`: the settings file may be on one of the drives.
    ScopedDrives drives_;
    Inputs inputs_;
    RequestedServices services_;
    Messages messages_;
    std::optional<LazyFile> exceptionFile_;
    TraceMonitor trace_;
    ExceptionMonitor exceptions_;
    DocumentCounts counts_;
    const Inputs::Input* current_ = nullptr;
    std::size_t failedBefore_ = failedCallbacks;
    std::size_t errors_ = 0;
    std::size_t charactersLost_ = 0;
    bool badInput_ = false;
};

}  // namespace

int runTool(std::span<const std::string> arguments, const ReplayEnvironment& environment) {
    try {
        const Options options = parseOptions(arguments);
        if (!options.help && !options.version) {
            return Run(options, environment).play();
        }
        if (options.help) {
            writeHelp(environment.output);
        } else {
            environment.output << toolName << ' ' << DOCHTML_VERSION << '\n'
                               << environment.describeComponent() << '\n';
        }
        if (!environment.output.flush()) {
            Messages(environment.errors, false)
                .write(std::string(toolName) + ": cannot write the output");
            return exitFailed;
        }
        return exitDone;
    } catch (const std::bad_alloc&) {
        Messages(environment.errors, false).write(outOfMemory);
        return exitFailed;
    } catch (const std::exception& failure) {
        return reportFailure(environment.errors, failure);
    }
}

}  // namespace quillmark::replay
