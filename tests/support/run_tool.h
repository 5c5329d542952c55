#pragma once

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "platform/line_end.h"
#include "platform/text_encoding.h"
#include "support/temp_dir.h"

namespace quillmark {

/// The exit status and the output of a program.
struct ToolResult {
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs a program of the project as a user would, through the system's command interpreter, in a
/// given directory and with settings of its own.
class ToolRunner {
public:
    /// `program` is the path of the program, `dir` the directory to start it in, which is not
    /// owned.
    ToolRunner(std::string program, const TempDir& dir) : program_(std::move(program)), dir_(dir) {
        setEnvironment("XDG_CONFIG_HOME", dir.nativeFile("config"));
        setEnvironment("XDG_DATA_HOME", dir.nativeFile("data"));
        setEnvironment("SOURCE_DATE_EPOCH", "0");
    }

    void setEnvironment(std::string name, std::string value) {
        environment_.emplace_back(std::move(name), std::move(value));
    }

    [[nodiscard]] ToolResult run(const std::vector<std::string>& arguments,
                                 const std::string& input = {}) const {
        const TempDir scratch;
        scratch.put("in", input);
        std::string command = changeDirectory + quoted(dir_.native()) + " && ";
        for (const auto& [name, value] : environment_) {
            command += assignment(name, value);
        }
        command += quoted(program_);
        for (const std::string& argument : arguments) {
            command += " " + quoted(argument);
        }
        command += " <" + quoted(scratch.nativeFile("in")) + " >" +
                   quoted(scratch.nativeFile("out")) + " 2>" + quoted(scratch.nativeFile("err"));
        ToolResult result;
        result.status = exitStatus(std::system(inSystemForm(command).c_str()));
        result.output = asLines(scratch.content("out").value_or(""));
        result.errors = asLines(scratch.content("err").value_or(""));
        return result;
    }

    /// The content of a text file, with a line feed as the line end on every system.
    [[nodiscard]] static std::string asLines(const std::string& text) {
        return OrxString(text).replaceStr(systemLineEnd(), "\n").str();
    }

private:
#ifdef _WIN32
    static constexpr const char* changeDirectory = "cd /d ";
    static std::string quoted(const std::string& text) {
        return "\"" + text + "\"";
    }
    static std::string assignment(const std::string& name, const std::string& value) {
        return "set " + quoted(name + "=" + value) + "&& ";
    }
    static int exitStatus(int status) {
        return status;
    }
    /// The interpreter expects its command in the code page.
    static std::string inSystemForm(const std::string& utf8) {
        return TextEncoding::codePage().fromUtf8(utf8).str();
    }
#else
    static constexpr const char* changeDirectory = "cd ";
    static std::string quoted(const std::string& text) {
        std::string result = "'";
        for (const char c : text) {
            result += c == '\'' ? std::string("'\\''") : std::string(1, c);
        }
        return result + "'";
    }
    static std::string assignment(const std::string& name, const std::string& value) {
        return name + "=" + quoted(value) + " ";
    }
    static std::string inSystemForm(const std::string& utf8) {
        return utf8;
    }
    /// The exit status, or -1 if a signal ended the program.
    static int exitStatus(int status) {
        return (status & 0x7F) == 0 ? (status >> 8) & 0xFF : -1;
    }
#endif

    std::string program_;
    const TempDir& dir_;
    std::vector<std::pair<std::string, std::string>> environment_;
};

}  // namespace quillmark
