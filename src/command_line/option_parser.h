#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace quillmark {

/// Parses a command line. Options may appear anywhere in front of "--"; everything else is an
/// operand, and so is "-".
///
///     OptionParser parser;
///     parser.addOption("-o,--output", "FILE", "write to FILE",
///                      [&](const std::string& value) { output = value; });
///     parser.addFlag("-q,--quiet", "show no progress", quiet);
///     const std::vector<std::string> operands = parser.parse(arguments);
class OptionParser {
public:
    using ValueHandler = std::function<void(const std::string& value)>;

    OptionParser();
    ~OptionParser();
    OptionParser(const OptionParser&) = delete;
    OptionParser& operator=(const OptionParser&) = delete;

    /// Adds an option that takes a value. `names` are separated by commas, the long one last. The
    /// value name "FILE" or "DIR" rules out an empty value.
    void addOption(const std::string& names, const std::string& valueName,
                   const std::string& meaning, ValueHandler handler);
    /// Adds an option without a value. `flag` becomes true when it is given and must outlive the
    /// parser.
    void addFlag(const std::string& names, const std::string& meaning, bool& flag);

    /// Checks the arguments, without the program's name, and passes each value to the handler of
    /// its option, in the order of the command line. Returns the operands. To be called once.
    /// Throws `BadUsage`, and what the handlers throw.
    [[nodiscard]] std::vector<std::string> parse(std::span<const std::string> arguments);

    /// The list of all options for a help text, with the heading "Options:".
    [[nodiscard]] std::string help() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

}  // namespace quillmark
