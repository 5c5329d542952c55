#include "replay/tool/options.h"

#include <charconv>

#include "command_line/bad_usage.h"
#include "command_line/option_parser.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

Options::Setting parseSetting(const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::size_t dot = text.substr(0, equals).find('.');
    if (equals == std::string::npos || dot == std::string::npos || dot == 0 || dot + 1 == equals) {
        throw BadUsage("--set takes GROUP.NAME=VALUE, not \"" + text + "\"");
    }
    return {text.substr(0, dot), text.substr(dot + 1, equals - dot - 1), text.substr(equals + 1)};
}

std::int16_t parseTraceLevel(const std::string& text) {
    std::int16_t level = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), level);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw BadUsage("--trace takes an integer from -32768 to 32767, not \"" + text + "\"");
    }
    return level;
}

void addFile(OptionParser& parser, const std::string& names, std::optional<std::string>& file,
             const std::string& meaning) {
    parser.addOption(names, "FILE", meaning, [&file](const std::string& name) { file = name; });
}

void addSettings(OptionParser& parser, Options& options) {
    addFile(parser, "--settings", options.settingsFile, "INI file with one section per group");
    parser.addOption(
        "--set", "GROUP.NAME=VALUE", "change one setting for this run (repeatable)",
        [&](const std::string& text) { options.settings.push_back(parseSetting(text)); });
    parser.addOption("--install-dir", "DIR", "take style sheet, pictures and archives from DIR",
                     [&](const std::string& dir) {
                         options.settings.push_back({settingsGroup, "InstallDir", dir, true});
                     });
}

void addLogs(OptionParser& parser, Options& options) {
    parser.addOption("--trace", "LEVEL", "call trace(LEVEL) first for each object",
                     [&](const std::string& text) { options.traceLevel = parseTraceLevel(text); });
    addFile(parser, "--log", options.logFile, "write the call trace to FILE");
    addFile(parser, "--exceptions", options.exceptionFile, "write the exception log to FILE");
}

void addConfinement(OptionParser& parser, Options& options) {
    parser.addFlag("--confine",
                   "for calls from strangers: write only below the output directory, read only "
                   "the support files and what --allow-read names",
                   options.confine);
    parser.addOption("--allow-read", "DIR", "let a confined run read below DIR (repeatable)",
                     [&](const std::string& dir) { options.allowRead.push_back(dir); });
}

/// Lets `parser` write what it finds into `options`.
void addOptions(OptionParser& parser, Options& options) {
    addFile(parser, "-o,--output", options.output, "name for the first document");
    addSettings(parser, options);
    addFile(parser, "--ini", options.iniFile, "ini file to read instead of Veltrano.ini");
    addFile(parser, "--model", options.modelFile, "model metadata for entry icons (JSON)");
    addFile(parser, "--image-maps", options.imageMapFile, "regions of pictures (JSON)");
    addDriveOption(parser, options.drives);
    addLogs(parser, options);
    addConfinement(parser, options);
    parser.addFlag("--strict", "let warnings and unresolved references fail", options.strict);
    parser.addFlag("-v,--verbose", "name all warnings, not only the first three", options.verbose);
    parser.addFlag("-q,--quiet", "show no progress and no summary", options.quiet);
    parser.addFlag("-h,--help", "show this help", options.help);
    parser.addFlag("--version", "show the version", options.version);
}

}  // namespace

Options parseOptions(std::span<const std::string> arguments) {
    Options options;
    OptionParser parser;
    addOptions(parser, options);
    options.inputs = parser.parse(arguments);
    if (options.inputs.empty() && !options.help && !options.version) {
        throw BadUsage("no calls given; try --help");
    }
    if (!options.allowRead.empty() && !options.confine) {
        throw BadUsage("--allow-read is for runs with --confine");
    }
    return options;
}

void writeHelp(std::ostream& out) {
    Options unused;
    OptionParser parser;
    addOptions(parser, unused);
    out << "Usage: dochtml-replay [OPTIONS] CALLS...\n\n"
           "Plays document calls into the HTML driver. CALLS are call streams (JSON Lines) or\n"
           "recorded call traces, played one after the other; - is standard input.\n"
        << parser.help()
        << "\nExit status: 0 if all went well; 1 if something failed on the way; 2 for bad usage\n"
           "or bad input.\n";
}

}  // namespace quillmark::replay
