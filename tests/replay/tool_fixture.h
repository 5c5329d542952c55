#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/run_tool.h"

namespace quillmark::replay {

/// Runs the program in a directory that belongs to the test.
class ReplayTool : public ::testing::Test {
protected:
    ToolResult run(const std::vector<std::string>& arguments, const std::string& input = {}) {
        return ToolRunner(DOCHTML_REPLAY_PROGRAM, dir_).run(arguments, input);
    }
    [[nodiscard]] std::string native(const std::string& name) const {
        return dir_.nativeFile(name);
    }
    [[nodiscard]] std::string content(const std::string& name) const {
        return dir_.content(name).value_or("(missing)");
    }
    /// The lines of a trace, whatever the system ends them with.
    [[nodiscard]] std::string lines(const std::string& name) const {
        return ToolRunner::asLines(content(name));
    }
    [[nodiscard]] bool exists(const std::string& name) const {
        return std::filesystem::exists(native(name));
    }
    /// All files below a directory with their bytes.
    [[nodiscard]] std::map<std::string, std::string> filesIn(const std::string& dir) const {
        std::map<std::string, std::string> files;
        const std::filesystem::path root = native(dir);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            if (entry.is_regular_file()) {
                const std::string name = entry.path().lexically_relative(root).generic_string();
                files[name] = content(dir + "/" + name);
            }
        }
        return files;
    }
    void makeDirectory(const std::string& name) const {
        std::filesystem::create_directories(native(name));
    }

    TempDir dir_;
};

}  // namespace quillmark::replay
