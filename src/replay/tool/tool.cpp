#include "replay/tool/tool.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

#include "command_line/program.h"
#include "command_line/scoped_drives.h"
#include "command_line/utf8_path.h"
#include "foundation/surrogates.h"
#include "foundation/utf8.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_failure.h"
#include "platform/text_encoding.h"
#include "replay/input/bad_input.h"
#include "replay/input/inputs.h"
#include "replay/play/document_counts.h"
#include "replay/play/player.h"
#include "replay/services/callback_guard.h"
#include "replay/tool/confinement_options.h"
#include "replay/tool/findings.h"
#include "replay/tool/lazy_file.h"
#include "replay/tool/messages.h"
#include "replay/tool/requested_services.h"
#include "replay/tool/shown_names.h"
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

/// The characters of a text that the document cannot hold; of many only the first.
std::string lostCharacters(WideText text) {
    constexpr std::size_t most = 10;
    const TextEncoding& encoding = TextEncoding::current();
    std::u16string lost;
    while (!text.empty() && lost.size() < most) {
        const bool isPair =
            text.size() > 1 && surrogates::isHigh(text[0]) && surrogates::isLow(text[1]);
        const WideText character = text.substr(0, isPair ? 2 : 1);
        lost += encoding.holds(character) ? WideText() : character;
        text.remove_prefix(character.size());
    }
    return utf8::fromUtf16(lost);
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
          trace_(inputs_.hasRecording(), traceHandlers()),
          // NOLINTNEXTLINE(bugprone-throw-keyword-missing): a member, not an exception
          exceptions_(
              [this](std::string_view failure) { reportDriver(failure, trace_.takeReason()); },
              exceptionWriter()) {
        checkOutputName();
        counts_.unresolvedFound = [this] { hearReports(findings_.wantsUnresolved()); };
        trace_.hearReports(options_.verbose);
    }

    int play() {
        makeLogDirectory();
        warnOfUnknownSettings();
        provided_ = environment_.provideServices(hostServices());
        {
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
        provided_.reset();
        messages_.clearProgress();
        if (const std::size_t failed = failedCallbacks - failedBefore_; failed > 0) {
            errors_ += failed;
            messages_.write(outOfMemory);
        }
        checkOutput();
        if (!options_.quiet) {
            writeSummary();
        } else if (isRefused()) {
            findings_.write(messages_, std::string(toolName));
        }
        if (badInput_) {
            return exitBadInput;
        }
        return errors_ > 0 || isRefused() || !environment_.errors ? exitFailed : exitDone;
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

    /// What is otherwise fine, but not with "--strict".
    [[nodiscard]] bool isRefused() const noexcept {
        return options_.strict &&
               (trace_.warnings() > 0 || counts_.unresolved > 0 || unknownSettings_ > 0);
    }

    TraceMonitor::Handlers traceHandlers() {
        return {
            [this](std::string_view failure, std::string_view reason) {
                reportDriver(failure, reason);
            },
            [this](std::string_view warning) { findings_.addWarning(shown_.message(warning, {})); },
            [this](std::string_view report) {
                const std::size_t lineEnd = std::min(report.find('\n'), report.size());
                constexpr std::string_view opening = "Unresolved references on page ";
                findings_.addUnresolved(
                    shown_.path(report.substr(opening.size(), lineEnd - opening.size())),
                    report.substr(lineEnd));
            }};
    }

    /// Reports are on for the pages whose unresolved references the summary names.
    void hearReports(bool hears) {
        const bool wanted = hears || options_.verbose;
        if (wanted != trace_.hearsReports()) {
            trace_.hearReports(wanted);
            provided_->traceLevelChanged();
        }
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
        settings.store = services_.services().settings;
        settings.startDirectory = driverPath(utf8Path(startDirectory()));
        checkFileName(settings.startDirectory, services_.encoding());
        settings.traceLevel = options_.traceLevel;
        if (options_.output) {
            settings.outputName = files_.driver(*options_.output);
            checkFileName(*settings.outputName, services_.encoding());
        }
        return settings;
    }

    Player::Listeners listeners() {
        return {[this](WideText answer) {
                    if (outputProblem_.empty()) {
                        environment_.output << utf8::fromUtf16(answer) << '\n';
                        outputProblem_ = outputProblem(environment_.output);
                    }
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
                    hearReports(false);
                    constexpr std::size_t interval = 1024;
                    if (calls % interval == 0) {
                        messages_.progress(calls, counts_.pages);
                    }
                },
                [this](std::size_t line, WideText text) {
                    lostInUtf8_ += TextEncoding::utf8().countLost(text);
                    findings_.addLost(current_->name + ":" + std::to_string(line) + ": " +
                                      lostCharacters(text));
                }};
    }

    ExceptionMonitor::Handler exceptionWriter() {
        if (!options_.exceptionFile) {
            return {};
        }
        exceptionFile_.emplace(files_.native(*options_.exceptionFile));
        return [this](std::string_view message) {
            if (!exceptionFile_->write(message)) {
                reportExceptionFile();
            }
        };
    }

    void reportExceptionFile() {
        const std::string reason = exceptionFile_->reason();
        reportError("cannot write " + *options_.exceptionFile +
                    (reason.empty() ? "" : ": " + reason));
    }

    /// The driver creates the log file itself, and reports it if that fails.
    void makeLogDirectory() {
        if (options_.logFile) {
            std::error_code failure;
            std::filesystem::create_directories(files_.native(*options_.logFile).parent_path(),
                                                failure);
        }
    }

    /// A name without a file part would make files that are hidden or in the wrong directory.
    void checkOutputName() const {
        if (!options_.output) {
            return;
        }
        const std::string& name = *options_.output;
        std::error_code ignored;
        if (name.ends_with('/') || name.ends_with('\\') ||
            std::filesystem::is_directory(files_.native(name), ignored)) {
            throw BadInput("-o takes the name of a page, and " + name +
                           " is a directory; name a file in it, for instance " +
                           utf8Path(pathFrom(name) / "report.htm"));
        }
    }

    /// An unknown setting is most likely misspelled. It does no harm, so the run continues.
    void warnOfUnknownSettings() {
        for (const Options::Setting& setting : options_.settings) {
            if (findSetting(setting.group, setting.name) == nullptr) {
                ++unknownSettings_;
                messages_.write(std::string(toolName) + ": warning: there is no setting " +
                                setting.group + "." + setting.name);
            }
        }
    }

    void checkOutput() {
        if (outputProblem_.empty()) {
            outputProblem_ = outputProblem(environment_.output);
        }
        if (!outputProblem_.empty()) {
            reportError(outputProblem_);
        }
        if (exceptionFile_ && !exceptionFile_->close()) {
            reportExceptionFile();
        }
    }

    /// Reports a problem in a line of the current input.
    void reportAt(std::size_t line, const std::string& what) {
        messages_.write(current_->name + ":" + std::to_string(line) + ": " + what);
    }

    /// Reports a failure in the driver's words. Callbacks of the driver may not throw. What follows
    /// from a refusal is not one more error.
    void reportDriver(std::string_view what, std::string_view reason) {
        errors_ += reason == FileFailure::refusal ? 0 : 1;
        write(shown_.message(what, reason));
    }

    void reportError(const std::string& what) {
        ++errors_;
        write(what);
    }

    void write(const std::string& what) { messages_.write(std::string(toolName) + ": " + what); }

    /// What UTF-8 would keep of the lost characters: all, except halves of surrogate pairs.
    [[nodiscard]] std::string utf8Hint() const {
        if (lostInUtf8_ == charactersLost_) {
            return {};
        }
        const std::string kept =
            lostInUtf8_ == 0 ? "them" : "all but " + std::to_string(lostInUtf8_);
        return " (--set Html.CharSet=UTF-8 keeps " + kept + ")";
    }

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
            text += ", " + counted(charactersLost_, "character") + " lost" + utf8Hint();
        }
        messages_.write(std::string(toolName) + ": " + text);
        findings_.write(messages_, std::string(toolName));
        writeOpeningPage();
    }

    void writeOpeningPage() {
        const auto opening = counts_.opening.answer();
        if (!opening.has_value()) {
            return;
        }
        const std::string page = shown_.path(opening->page);
        messages_.write(std::string(toolName) + ": " +
                        (opening->needsJava
                             ? page + " needs a browser with Java. For today's browsers add --set "
                                      "Html.ScriptNavigator=true"
                             : "open " + page));
    }

    /// The tool itself keeps all texts and names in UTF-8.
    const TextEncoding::Scope scope_{TextEncoding::utf8()};
    const Options& options_;
    const ReplayEnvironment& environment_;
    /// The driver changes the current directory.
    std::filesystem::path start_ = startDirectory();
    OptionFiles files_;
    ShownNames shown_{files_, start_};
    /// Declared before `services_`: the settings file may be on one of the drives.
    ScopedDrives drives_;
    Inputs inputs_;
    RequestedServices services_;
    Messages messages_;
    std::optional<LazyFile> exceptionFile_;
    TraceMonitor trace_;
    ExceptionMonitor exceptions_;
    DocumentCounts counts_;
    Findings findings_{options_.verbose};
    /// Removed before what it refers to.
    std::shared_ptr<ProvidedServices> provided_;
    const Inputs::Input* current_ = nullptr;
    std::size_t failedBefore_ = failedCallbacks;
    /// Why an answer could not be written; empty if all were.
    std::string outputProblem_;
    std::size_t errors_ = 0;
    std::size_t charactersLost_ = 0;
    std::size_t lostInUtf8_ = 0;
    std::size_t unknownSettings_ = 0;
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
        const std::string problem = outputProblem(environment.output);
        if (!problem.empty()) {
            Messages(environment.errors, false).write(std::string(toolName) + ": " + problem);
        }
        return problem.empty() ? exitDone : exitFailed;
    } catch (const std::bad_alloc&) {
        Messages(environment.errors, false).write(outOfMemory);
        return exitFailed;
    } catch (const std::exception& failure) {
        return reportFailure(environment.errors, failure);
    }
}

}  // namespace quillmark::replay
